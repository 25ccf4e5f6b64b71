// The page of the lighting: the panel of the ring that the fan carries, and what holds for every ring.
#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QStackedLayout;

namespace zpsg::ui {

class Card;
class EmptyState;
class PageHead;
class LightingOptions;
class RGB12LEDWidget;
class RingPanel;
class ZpsCirq;
class ZpsCirqDuo_Widget;

class LightingPage : public QWidget {
    Q_OBJECT

public:
    enum class Ring { None, Single, Plus, Duo };

    explicit LightingPage(QWidget *parent = nullptr);

    /// None: no supply is known yet, or its fan has no lights.
    void setRing(Ring ring);
    /// Whether the supply is there. Without it everything stays usable, and the page says so.
    void setReachable(bool reachable);

    [[nodiscard]] ZpsCirq *single() const { return single_; }
    [[nodiscard]] RGB12LEDWidget *plus() const { return plus_; }
    [[nodiscard]] ZpsCirqDuo_Widget *duo() const { return duo_; }
    [[nodiscard]] LightingOptions *options() const { return options_; }

signals:
    /// The page can be seen, or no more: on another page, hidden or minimised with its window.
    void watched(bool on);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] std::array<RingPanel *, 3> panels() const;
    void layOut();
    void retranslate();
    void applyScale();
    void showHint();
    void showGauge(int gauge);
    void look();

    Ring ring_ = Ring::None;
    bool reachable_ = true;
    bool watched_ = false;
    PageHead *head_;
    QWidget *body_;
    Card *empty_;
    EmptyState *emptyState_;
    ZpsCirq *single_;
    RGB12LEDWidget *plus_;
    ZpsCirqDuo_Widget *duo_;
    LightingOptions *options_;
    QStackedLayout *stack_ = nullptr; ///< in the order of Ring
};

} // namespace zpsg::ui
