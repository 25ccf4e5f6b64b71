#include "ui/AboutPage.h"

#include "ui/Controls.h"
#include "ui/Figures.h"
#include "ui/TrayIcon.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeySequence>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSysInfo>

#include <utility>

namespace zpsg::ui {
namespace {

constexpr int kConfirmMs = 2000;
constexpr qreal kSignSide = 48.0;
constexpr qreal kRowGap = 5.0;
constexpr Qt::TextInteractionFlags kByMouse = Qt::TextSelectableByMouse;
const Qt::TextInteractionFlags kSelectable = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;

struct Library {
    const char *name;
    const char *licence; ///< as SPDX names it, where it does
};

constexpr std::array kLibraries{
    Library{"Qt", "LGPL-3.0"},
    Library{"Qwt", "Qwt License 1.0, based on the LGPL"},
    Library{"hidapi", "BSD-3-Clause"},
    Library{"SQLite", "public domain"},
    Library{"libsodium", "ISC"},
    Library{"libzip", "BSD-3-Clause"},
    Library{"zlib", "Zlib"},
    Library{"libmosquitto", "EPL-2.0 or EDL-1.0"},
    Library{"OpenSSL", "Apache-2.0"},
    Library{"libmicrohttpd", "LGPL-2.1 or later"},
    Library{"KISS FFT", "BSD-3-Clause"},
};

QString versionText() { return QCoreApplication::applicationVersion(); }

QString buildText() {
    return QStringLiteral("Qt %1, %2").arg(QString::fromLatin1(qVersion()), QSysInfo::buildCpuArchitecture());
}

QString kernelText() { return QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(); }

QString orDash(const QString &text) { return text.isEmpty() ? QString(kNoValue) : text; }

QString wattsText(double watts) {
    return watts > 0.0 ? formatFigure(watts, 0) + QStringLiteral("\u00A0W") : QString();
}

QString linkText(AboutSupply::Link link) {
    switch (link) {
    case AboutSupply::Link::Main:
        return qtTrId("ABOUT_STR_LINK_MAIN");
    case AboutSupply::Link::Raw:
        return qtTrId("ABOUT_STR_LINK_RAW");
    case AboutSupply::Link::Demo:
        return qtTrId("ABOUT_STR_LINK_DEMO");
    case AboutSupply::Link::None:
        break;
    }
    return qtTrId("ABOUT_STR_LINK_NONE");
}

const char *linkDetail(AboutSupply::Link link) {
    switch (link) {
    case AboutSupply::Link::Main:
        return "main path";
    case AboutSupply::Link::Raw:
        return "raw path";
    case AboutSupply::Link::Demo:
        return "simulated";
    case AboutSupply::Link::None:
        break;
    }
    return "none";
}

QString keyText(int key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

} // namespace

/// The program's own sign.
class AboutPage::Sign : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPixmap sign = trayPixmap({{}, 0.75, TrayLevel::Normal}, qRound(width() * devicePixelRatioF()));
        sign.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(this);
        painter.drawPixmap(0, 0, sign);
    }
};

AboutPage::AboutPage(int pages, QWidget *parent)
    : QWidget(parent)
    , pages_(pages)
    , scroll_(new QScrollArea(this))
    , content_(new QWidget)
    , sign_(new Sign(content_))
    , head_(new PageHead(content_))
    , copy_(new QPushButton(content_))
    , update_(new UpdateNotice(content_)) {
    copy_->setObjectName(QStringLiteral("btnCopyDetails"));
    copy_->setCursor(Qt::PointingHandCursor);
    copied_.setSingleShot(true);
    copied_.setInterval(kConfirmMs);
    connect(copy_, &QPushButton::clicked, this, &AboutPage::copyDetails);
    connect(&copied_, &QTimer::timeout, this, &AboutPage::showButton);
    connect(update_, &UpdateNotice::pageRequested, this, &AboutPage::updatePageRequested);

    const Section supply = addSection(QT_TRID_NOOP("ABOUT_STR_SUPPLY"));
    model_ = addRow(supply, QT_TRID_NOOP("ABOUT_STR_MODEL"));
    rating_ = addRow(supply, QT_TRID_NOOP("ABOUT_STR_RATING"));
    serial_ = addRow(supply, QT_TRID_NOOP("ABOUT_STR_SERIAL"));
    link_ = addRow(supply, QT_TRID_NOOP("ABOUT_STR_LINK"));
    const Section program = addSection(QT_TRID_NOOP("ABOUT_STR_PROGRAM"));
    folder_ = addRow(program, QT_TRID_NOOP("ABOUT_STR_DATA"));
    folder_->setText(orDash({}));
    addRow(program, QT_TRID_NOOP("ABOUT_STR_BUILD"))->setText(buildText());
    addRow(program, QT_TRID_NOOP("ABOUT_STR_SYSTEM"))->setText(QSysInfo::prettyProductName());
    addRow(program, QT_TRID_NOOP("ABOUT_STR_LICENCE"))->setText(QStringLiteral("MIT"));
    addLibraries(program);
    addKeys(addSection(QT_TRID_NOOP("ABOUT_STR_KEYBOARD")));
    layOut();
    retranslate();
}

AboutPage::Section AboutPage::addSection(const char *key) {
    auto *card = new Card(content_);
    auto *caption = new QLabel(card);
    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    auto *layout = new QVBoxLayout(card);
    layout->addWidget(caption);
    layout->addLayout(grid);
    layout->addStretch(1);
    sections_.push_back({card, caption, grid, key});
    return sections_.back();
}

/// Gives the label of the value.
QLabel *AboutPage::addRow(const Section &section, const char *key) {
    auto *name = new QLabel(section.card);
    name->setProperty("tone", QStringLiteral("secondary"));
    auto *value = new QLabel(section.card);
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(kSelectable);
    value->setWordWrap(true);
    const int row = section.grid->rowCount();
    section.grid->addWidget(name, row, 0, Qt::AlignTop);
    section.grid->addWidget(value, row, 1, Qt::AlignTop);
    rows_.push_back({name, value, key});
    return value;
}

void AboutPage::addLibraries(const Section &section) {
    libraries_ = new QLabel(section.card);
    section.grid->addWidget(libraries_, section.grid->rowCount(), 0, 1, 2);
    for (const Library &library : kLibraries) {
        const int row = section.grid->rowCount();
        auto *name = new QLabel(QString::fromLatin1(library.name), section.card);
        auto *licence = new QLabel(QString::fromLatin1(library.licence), section.card);
        licence->setProperty("tone", QStringLiteral("secondary"));
        for (QLabel *label : {name, licence}) {
            label->setTextInteractionFlags(kByMouse);
            fine_.push_back(label);
        }
        section.grid->addWidget(name, row, 0);
        section.grid->addWidget(licence, row, 1);
    }
}

void AboutPage::addKeys(const Section &section) {
    for (const char *key : {QT_TRID_NOOP("ABOUT_STR_KEY_PAGES"), QT_TRID_NOOP("ABOUT_STR_KEY_TAB"),
                            QT_TRID_NOOP("ABOUT_STR_KEY_ARROWS"), QT_TRID_NOOP("ABOUT_STR_KEY_SPACE"),
                            QT_TRID_NOOP("ABOUT_STR_KEY_ESC")}) {
        // Here the first column has no translation and the second one has.
        QLabel *meaning = addRow(section, key);
        QLabel *name = std::exchange(rows_.back().name, meaning);
        rows_.back().value = name;
        name->setProperty("tone", QVariant());
        meaning->setProperty("tone", QStringLiteral("secondary"));
        for (QLabel *label : {name, meaning}) {
            label->setTextInteractionFlags(kByMouse);
        }
        keys_.push_back(name);
    }
}

void AboutPage::layOut() {
    top_ = new QHBoxLayout;
    top_->addWidget(sign_, 0, Qt::AlignVCenter);
    top_->addWidget(head_, 1, Qt::AlignVCenter);
    top_->addWidget(copy_, 0, Qt::AlignVCenter);
    columns_ = new QHBoxLayout;
    for (QBoxLayout *&column : column_) {
        column = new QVBoxLayout;
        columns_->addLayout(column, 1);
    }
    column_.at(0)->addWidget(sections_.at(0).card);
    column_.at(0)->addWidget(sections_.at(2).card, 1);
    column_.at(1)->addWidget(sections_.at(1).card, 1);
    auto *layout = new QVBoxLayout(content_);
    layout->addLayout(top_);
    layout->addWidget(update_);
    layout->addLayout(columns_);
    layout->addStretch(1);

    scroll_->setWidget(content_);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus); // it follows what has the focus in it
    scroll_->viewport()->setAutoFillBackground(false);
    content_->setAutoFillBackground(false);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(scroll_);
}

void AboutPage::applyScale() {
    const qreal scale = style::windowScale(*this);
    const int gap = qRound(style::space::kM * scale);
    const int margin = qRound(style::space::kL * scale);
    content_->layout()->setContentsMargins(margin, 0, margin, margin);
    content_->layout()->setSpacing(gap);
    for (QBoxLayout *box : {top_, columns_, column_.at(0), column_.at(1)}) {
        box->setSpacing(gap);
    }
    const int side = qRound(kSignSide * scale);
    sign_->setFixedSize(side, side);
    head_->applyScale(scale);
    update_->applyScale(scale);
    const QFont body = style::font(style::type::kBody * scale);
    const QFont caption = style::font(style::type::kBody * scale, QFont::DemiBold);
    for (const Section &section : sections_) {
        section.caption->setFont(caption);
        section.card->layout()->setContentsMargins(gap, gap, gap, gap);
        section.card->layout()->setSpacing(qRound(style::space::kS * scale));
        section.grid->setHorizontalSpacing(margin);
        section.grid->setVerticalSpacing(qRound(kRowGap * scale));
    }
    for (const Row &row : rows_) {
        row.name->setFont(body);
        row.value->setFont(body);
    }
    for (QLabel *label : fine_) {
        label->setFont(style::font(style::type::kLabel * scale));
    }
    libraries_->setFont(caption);
    libraries_->setContentsMargins(0, gap, 0, 0);
    copy_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
}

void AboutPage::retranslate() {
    head_->setTexts(QStringLiteral("%1 %2").arg(qtTrId("TRAYICON_NAME"), versionText()),
                    qtTrId("ABOUT_STR_WHAT"));
    for (const Section &section : sections_) {
        section.caption->setText(qtTrId(section.key));
    }
    for (const Row &row : rows_) {
        row.name->setText(qtTrId(row.key));
    }
    libraries_->setText(qtTrId("ABOUT_STR_LIBRARIES"));
    update_->retranslate();
    showSupply();
    showKeys();
    showButton();
}

void AboutPage::showKeys() {
    const int first = static_cast<int>(Qt::CTRL) | Qt::Key_1;
    const std::array texts{keyText(first) + QStringLiteral(" \u2026 ") + keyText(first + pages_ - 1),
                           keyText(Qt::Key_Tab), QStringLiteral("\u2190 \u2191 \u2192 \u2193"),
                           keyText(Qt::Key_Space), keyText(Qt::Key_Escape)};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        keys_.at(i)->setText(texts.at(i));
    }
}

void AboutPage::setSupply(const AboutSupply &supply) {
    supply_ = supply;
    showSupply();
}

void AboutPage::showSupply() {
    model_->setText(orDash(supply_.model));
    rating_->setText(orDash(wattsText(supply_.ratedWatts)));
    serial_->setText(orDash(supply_.serial));
    link_->setText(linkText(supply_.link));
}

// With slashes on Windows too: the system takes them as well, and a line can break after one.
void AboutPage::setDataFolder(const QString &folder) { folder_->setText(QDir::fromNativeSeparators(folder)); }

void AboutPage::setUpdate(const UpdateNews &news) { update_->showNews(news); }

QString AboutPage::details() const {
    return QStringLiteral("ZPS G %1\nSupply: %2, %3, connection: %4\nBuild: %5\nSystem: %6, %7\n")
        .arg(versionText(), supply_.model.isEmpty() ? QStringLiteral("not known") : supply_.model,
             supply_.ratedWatts > 0.0 ? QStringLiteral("%1 W").arg(supply_.ratedWatts)
                                      : QStringLiteral("rating not known"),
             QString::fromLatin1(linkDetail(supply_.link)), buildText(), QSysInfo::prettyProductName(),
             kernelText());
}

void AboutPage::copyDetails() {
    QGuiApplication::clipboard()->setText(details());
    copied_.start();
    showButton();
}

void AboutPage::showButton() {
    copy_->setText(copied_.isActive() ? qtTrId("MAIN_STR_COPIED") : qtTrId("ABOUT_STR_COPY"));
    copy_->setToolTip(qtTrId("ABOUT_STR_COPY_HINT"));
}

void AboutPage::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

void AboutPage::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace zpsg::ui
