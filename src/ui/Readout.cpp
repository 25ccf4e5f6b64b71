#include "ui/Readout.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace zpsg::ui {
namespace {

class ReadoutInterface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ReadoutInterface(Readout *readout) : QAccessibleWidget(readout, QAccessible::Indicator) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface *>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? readout().readoutText() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QVariant currentValue() const override {
        const std::optional<double> value = readout().readoutValue();
        return value ? QVariant(*value) : QVariant();
    }
    void setCurrentValue(const QVariant & /*value*/) override {}
    [[nodiscard]] QVariant minimumValue() const override { return readout().readoutRange().first; }
    [[nodiscard]] QVariant maximumValue() const override { return readout().readoutRange().second; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 0.0; }

private:
    [[nodiscard]] const Readout &readout() const { return *qobject_cast<const Readout *>(widget()); }
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object) {
    auto *readout = qobject_cast<Readout *>(object);
    return readout != nullptr ? new ReadoutInterface(readout) : nullptr;
}

} // namespace

Readout::Readout(QWidget *parent) : QWidget(parent) {
    // Installing the same factory again does nothing.
    QAccessible::installFactory(makeInterface);
}

void Readout::announce() {
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, readoutText());
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace zpsg::ui
