// The scrolled part of the settings page: one section, with its bar in the page's margin.
#pragma once

#include <QScrollArea>

#include <vector>

class QVBoxLayout;

namespace zpsg::ui {

class SettingsSection;

/// A control that gets the focus comes into view with the whole of its row. Page Up, Page Down, Home and End
/// scroll wherever they mean nothing else.
class SettingsScroll final : public QScrollArea {
    Q_OBJECT

public:
    explicit SettingsScroll(QWidget *parent);

    /// Becomes a child; the first one is shown.
    void addSection(SettingsSection *section);
    [[nodiscard]] QWidget *content() const { return widget(); }
    [[nodiscard]] const std::vector<SettingsSection *> &sections() const { return sections_; }
    void setCurrent(int section);
    [[nodiscard]] int current() const { return current_; }
    void applyScale(qreal scale);

    void keyPressEvent(QKeyEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void follow(const QWidget *focus);

    std::vector<SettingsSection *> sections_;
    QVBoxLayout *column_;
    int current_ = 0;
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
