// The section of the data: where it is kept, and what is done with all settings at once.
#include "ui/SettingRowControls.h"
#include "ui/SettingsEntry.h"
#include "ui/SettingsLink.h"
#include "ui/SettingsResetRow.h"
#include "ui/SettingsSections.h"

#include <QAccessible>
#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace zpsg::ui {
namespace {

using Sign = SettingsStatusLine::Sign;

const QString kSuffix = QStringLiteral("zpsgset");

/// Where the data is.
class FolderRow final : public SettingRow {
public:
    FolderRow(SettingsLink &link, QWidget *parent)
        : SettingRow({QT_TRID_NOOP("SETTING_STR_FOLDER"), QT_TRID_NOOP("SETTING_STR_FOLDER_HINT")}, parent)
        , path_(new SettingsCopyLine(this))
        , open_(new QPushButton(this)) {
        open_->setObjectName(QStringLiteral("btnOpenFolder"));
        open_->setProperty("slim", true);
        open_->setCursor(Qt::PointingHandCursor);
        addLine(path_);
        setControl(open_);
        connect(open_, &QPushButton::clicked, &link, &SettingsLink::openFolderRequested);
        connect(&link, &SettingsLink::statusShown, this,
                [this](SettingStatus status, const QString &text, bool /*problem*/) {
                    if (status == SettingStatus::Data) {
                        path_->setText(text);
                        path_->setCursorPosition(0);
                    }
                });
    }

    void retranslate() override {
        open_->setText(qtTrId("SETTING_STR_OPEN_FOLDER"));
        SettingRow::retranslate();
    }
    void applyScale(qreal scale) override {
        SettingRow::applyScale(scale);
        path_->applyScale(scale);
        applyButtonScale(*open_, scale);
    }

protected:
    void describe(const QString &name, const QString &description) override {
        path_->setAccessibleName(name);
        path_->setAccessibleDescription(description);
        open_->setAccessibleName(QStringLiteral("%1: %2").arg(name, open_->text()));
        open_->setAccessibleDescription(description);
    }

private:
    SettingsCopyLine *path_;
    QPushButton *open_;
};

/// Export, import and reset, and how the last of them ended.
class FileCard final : public SettingsCard {
public:
    FileCard(SettingsLink &link, QWidget *parent)
        : SettingsCard({QT_TRID_NOOP("SETTING_STR_FILE")}, parent), link_(link) {
        auto *exporting = new SettingButtonRow(
            {QT_TRID_NOOP("SETTING_STR_EXPORT"), QT_TRID_NOOP("SETTING_STR_EXPORT_HINT")},
            QT_TRID_NOOP("SETTING_STR_EXPORT_BUTTON"), this);
        auto *importing = new SettingButtonRow(
            {QT_TRID_NOOP("SETTING_STR_IMPORT"), QT_TRID_NOOP("SETTING_STR_IMPORT_HINT")},
            QT_TRID_NOOP("SETTING_STR_IMPORT_BUTTON"), this);
        auto *reset = new SettingsResetRow(this);
        exporting->button()->setObjectName(QStringLiteral("btnSettingsExport"));
        importing->button()->setObjectName(QStringLiteral("btnSettingsImport"));
        addRow(exporting);
        addRow(importing);
        addRow(reset);
        result_ = addFoot();
        result_->label()->setObjectName(QStringLiteral("lblSettingsResult"));
        connect(exporting, &SettingButtonRow::pressed, this, [this] { chooseFile(true); });
        connect(importing, &SettingButtonRow::pressed, this, [this] { chooseFile(false); });
        connect(reset, &SettingsResetRow::confirmed, &link, &SettingsLink::resetRequested);
        connect(&link, &SettingsLink::resultShown, this, &FileCard::showResult);
    }

private:
    void chooseFile(bool exporting) {
        if (folder_.isEmpty()) {
            folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        }
        const QString name =
            QStringLiteral("zpsg-settings-%1.%2").arg(QDate::currentDate().toString(Qt::ISODate), kSuffix);
        // A child of the window, so that it does not take on the page's looks.
        auto *dialog =
            new QFileDialog(window(), exporting ? qtTrId("SETTING_STR_EXPORT") : qtTrId("SETTING_STR_IMPORT"),
                            exporting ? folder_ + QLatin1Char('/') + name : folder_,
                            QStringLiteral("%1 (*.%2)").arg(qtTrId("SETTING_STR_FILES"), kSuffix));
        dialog->setAcceptMode(exporting ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        dialog->setFileMode(exporting ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        dialog->setDefaultSuffix(kSuffix);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QFileDialog::fileSelected, this, [this, exporting](const QString &path) {
            folder_ = QFileInfo(path).absolutePath();
            result_->showText({}, Sign::None);
            if (exporting) {
                emit link_.exportRequested(path);
            } else {
                emit link_.importRequested(path);
            }
        });
        dialog->open();
    }

    void showResult(const QString &text, bool problem) {
        result_->showText(text, problem ? Sign::Problem : Sign::Good);
        if (!text.isEmpty() && QAccessible::isActive()) {
            QAccessibleEvent event(result_->label(), QAccessible::Alert);
            QAccessible::updateAccessibility(&event);
        }
    }

    SettingsLink &link_;
    SettingsStatusLine *result_ = nullptr;
    QString folder_; ///< of the last file
};

} // namespace

SettingsSection *makeDataSettings(SettingsLink &link, QWidget *parent) {
    auto *section = new SettingsSection(parent);
    auto *place = new SettingsCard({QT_TRID_NOOP("SETTING_STR_PLACE")}, section);
    place->addRow(new FolderRow(link, place));
    section->addCard(place);
    section->addCard(new FileCard(link, section));
    return section;
}

} // namespace zpsg::ui
