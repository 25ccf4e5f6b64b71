// The slim list of the settings page's sections.
#pragma once

#include <QWidget>

#include <vector>

namespace zpsg::ui {

/// Tab reaches the chosen section; Up, Down, Home and End choose another one.
class SettingsSectionList final : public QWidget {
    Q_OBJECT

public:
    /// `keys` are the translation keys of the sections' names and have to outlive the list.
    SettingsSectionList(const std::vector<const char *> &keys, QWidget *parent);

    /// Without a signal.
    void setCurrent(int section);
    [[nodiscard]] int current() const { return current_; }
    /// A mark at the section: something in it waits for the user.
    void setMarked(int section, bool marked);
    /// Puts the focus on the chosen section.
    void takeFocus();
    void retranslate();
    void applyScale(qreal scale);

signals:
    /// Not for the one that is chosen already.
    void sectionChosen(int section);

private:
    class Item;
    void choose(int section);

    std::vector<Item *> items_;
    int current_ = 0;
};

} // namespace zpsg::ui
