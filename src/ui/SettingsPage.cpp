#include "ui/SettingsPage.h"

#include "ui/Controls.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsScroll.h"
#include "ui/SettingsSectionList.h"
#include "ui/SettingsSections.h"
#include "ui/Style.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace zpsg::ui {
namespace {

/// One for each of SettingsPage::Section, in that order.
std::vector<const char *> sectionKeys() {
    return {QT_TRID_NOOP("SETTING_STR_GENERAL"), QT_TRID_NOOP("SETTING_STR_ENERGY"),
            QT_TRID_NOOP("SETTING_STR_ALARMS"),  QT_TRID_NOOP("SETTING_STR_REMOTE"),
            QT_TRID_NOOP("SETTING_STR_SENSORS"), QT_TRID_NOOP("SETTING_STR_UPDATES"),
            QT_TRID_NOOP("SETTING_STR_DATA")};
}

} // namespace

SettingsPage::SettingsPage(QWidget *parent)
    : QWidget(parent)
    , link_(new SettingsLink(this))
    , head_(new PageHead(this))
    , list_(new SettingsSectionList(sectionKeys(), this))
    , scroll_(new SettingsScroll(this))
    , body_(new QHBoxLayout) {
    makeSections();
    body_->addWidget(list_);
    body_->addWidget(scroll_, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head_);
    layout->addLayout(body_, 1);
    forwardSignals();
    connect(list_, &SettingsSectionList::sectionChosen, this,
            [this](int section) { showSection(static_cast<Section>(section)); });
    connect(link_, &SettingsLink::editsWaiting, this,
            [this](bool waiting) { list_->setMarked(static_cast<int>(Section::Remote), waiting); });
    retranslate();
}

void SettingsPage::makeSections() {
    QWidget *content = scroll_->content();
    scroll_->addSection(makeGeneralSettings(*link_, content));
    scroll_->addSection(makeEnergySettings(*link_, content));
    scroll_->addSection(makeAlarmSettings(*link_, content));
    scroll_->addSection(makeRemoteSettings(*link_, content));
    scroll_->addSection(makeSensorSettings(*link_, content));
    scroll_->addSection(makeUpdateSettings(*link_, content));
    scroll_->addSection(makeDataSettings(*link_, content));
}

void SettingsPage::forwardSignals() {
    connect(link_, &SettingsLink::changed, this, &SettingsPage::changed);
    connect(link_, &SettingsLink::mqttApplied, this, &SettingsPage::mqttApplied);
    connect(link_, &SettingsLink::ratesRequested, this, &SettingsPage::ratesRequested);
    connect(link_, &SettingsLink::alarmsRequested, this, &SettingsPage::alarmsRequested);
    connect(link_, &SettingsLink::openFolderRequested, this, &SettingsPage::openFolderRequested);
    connect(link_, &SettingsLink::exportRequested, this, &SettingsPage::exportRequested);
    connect(link_, &SettingsLink::importRequested, this, &SettingsPage::importRequested);
    connect(link_, &SettingsLink::resetRequested, this, &SettingsPage::resetRequested);
    connect(link_, &SettingsLink::updateCheckRequested, this, &SettingsPage::updateCheckRequested);
}

void SettingsPage::setValue(SettingField field, const QVariant &value) { link_->setValue(field, value); }

void SettingsPage::setStatus(SettingStatus status, const QString &text, bool problem) {
    link_->setStatus(status, text, problem);
}

void SettingsPage::setAddressRule(bool (*rule)(const QString &)) { link_->addressRule = rule; }

void SettingsPage::showResult(const QString &text, bool problem) { emit link_->resultShown(text, problem); }

void SettingsPage::showSection(Section section) {
    const int number = static_cast<int>(section);
    list_->setCurrent(number);
    if (number == scroll_->current()) {
        return;
    }
    // What has the focus in a section that goes would hand it to some control of the one that comes.
    const QWidget *focus = QApplication::focusWidget();
    if (focus != nullptr && (scroll_->isAncestorOf(focus) || list_->isAncestorOf(focus))) {
        list_->takeFocus();
    }
    scroll_->setCurrent(number);
}

SettingsPage::Section SettingsPage::section() const { return static_cast<Section>(list_->current()); }

void SettingsPage::retranslate() {
    head_->setTexts(qtTrId("SETTING_STR_TITLE"), {});
    list_->retranslate();
    for (SettingsSection *section : scroll_->sections()) {
        section->retranslate();
    }
}

void SettingsPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    scale_ = scale;
    const int gap = qRound(style::space::kM * scale);
    layout()->setContentsMargins(qRound(style::space::kL * scale), 0, 0, 0);
    layout()->setSpacing(gap);
    body_->setSpacing(gap);
    head_->applyScale(scale);
    list_->applyScale(scale);
    scroll_->applyScale(scale);
}

// The keys that nobody wanted scroll, on the list as well.
void SettingsPage::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        scroll_->keyPressEvent(event);
        return;
    }
    QWidget::keyPressEvent(event);
}

void SettingsPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (style::windowScale(*this) != scale_) {
        applyScale();
    }
}

void SettingsPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        applyScale(); // controls are as wide as their texts
    }
}

} // namespace zpsg::ui
