#include "ui/UpdateNotice.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QVariant>

namespace zpsg::ui {

UpdateNotice::UpdateNotice(QWidget *parent)
    : Card(parent)
    , title_(new QLabel(this))
    , running_(new QLabel(this))
    , notes_(new QLabel(this))
    , open_(new QPushButton(this))
    , row_(new QHBoxLayout(this))
    , words_(new QVBoxLayout) {
    title_->setObjectName(QStringLiteral("lblUpdate"));
    notes_->setObjectName(QStringLiteral("lblUpdateNotes"));
    open_->setObjectName(QStringLiteral("btnUpdatePage"));
    open_->setProperty("primary", true);
    open_->setCursor(Qt::PointingHandCursor);
    running_->setProperty("tone", QStringLiteral("secondary"));
    for (QLabel *label : {title_, notes_, running_}) {
        label->setTextFormat(Qt::PlainText); // the notes come from elsewhere
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        words_->addWidget(label);
    }
    row_->addLayout(words_, 1);
    row_->addWidget(open_, 0, Qt::AlignVCenter);
    connect(open_, &QPushButton::clicked, this, &UpdateNotice::pageRequested);
    hide();
}

void UpdateNotice::showNews(const UpdateNews &news) {
    news_ = news;
    retranslate();
    setVisible(!news_.version.isEmpty());
}

void UpdateNotice::retranslate() {
    title_->setText(qtTrId("UPDATE_STR_AVAILABLE").arg(news_.version));
    running_->setText(qtTrId("UPDATE_STR_RUNNING").arg(QCoreApplication::applicationVersion()));
    notes_->setText(news_.notes);
    notes_->setVisible(!news_.notes.isEmpty());
    open_->setText(qtTrId("UPDATE_STR_OPEN"));
    open_->setToolTip(qtTrId("UPDATE_STR_OPEN_HINT").arg(news_.address));
    open_->setAccessibleDescription(open_->toolTip());
}

void UpdateNotice::applyScale(qreal scale) {
    const int gap = qRound(style::space::kM * scale);
    row_->setContentsMargins(qRound(style::space::kL * scale), gap, gap, gap);
    row_->setSpacing(qRound(style::space::kL * scale));
    words_->setSpacing(qRound(style::space::kXs * scale));
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    notes_->setFont(style::font(style::type::kBody * scale));
    running_->setFont(style::font(style::type::kLabel * scale));
    open_->setFont(style::font(style::type::kBody * scale, QFont::Medium));
}

void UpdateNotice::paintEvent(QPaintEvent *event) {
    Card::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(style::colour::kAccent));
    painter.drawRoundedRect(QRectF(0.0, style::space::kM, 3.0, height() - 2.0 * style::space::kM), 1.5, 1.5);
}

} // namespace zpsg::ui
