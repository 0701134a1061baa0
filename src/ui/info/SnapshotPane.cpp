#include "SnapshotPane.h"

#include <QFont>
#include <QPainter>
#include <QVBoxLayout>

#include "SnapshotPicture.h"

namespace coinlight {

ScaledPicture::ScaledPicture(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("imgShots"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(16, 16);
}

void ScaledPicture::SetPicture(QImage picture) {
    m_picture = std::move(picture);
    m_scaled = QPixmap();
    update();
}

void ScaledPicture::Clear() {
    SetPicture({});
}

void ScaledPicture::SetFixedPlace(std::optional<QRect> place) {
    m_fixedPlace = place;
    m_scaled = QPixmap();
    update();
}

QRect ScaledPicture::Room() const {
    return m_fixedPlace ? *m_fixedPlace : rect();
}

QRect ScaledPicture::PictureRect() const {
    if (m_picture.isNull()) {
        return {};
    }
    const QRect room = Room();
    QRect target(QPoint(), m_picture.size().scaled(room.size(), Qt::KeepAspectRatio));
    target.moveCenter(room.center());
    if (m_fixedPlace) {
        target.moveTopLeft(room.topLeft());
    }
    return target;
}

void ScaledPicture::paintEvent(QPaintEvent*) {
    const QRect target = PictureRect();
    if (target.isEmpty()) {
        return;
    }
    if (m_scaled.size() != target.size()) {
        m_scaled = QPixmap::fromImage(ScaledForDisplay(m_picture, target.size()));
    }
    QPainter painter(this);
    painter.drawPixmap(target.topLeft(), m_scaled);
}

SnapshotPane::SnapshotPane(QWidget* parent)
    : QWidget(parent), m_picture(new ScaledPicture), m_missing(new QLabel) {
    setObjectName(QStringLiteral("picShots"));
    m_missing->setObjectName(QStringLiteral("lblShots"));
    m_missing->setWordWrap(true);
    m_missing->setAlignment(Qt::AlignCenter);
    m_missing->setFont(QFont(QStringLiteral("Comic Sans MS"), 16));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_picture);
    layout->addWidget(m_missing);
    ShowNothing();
}

void SnapshotPane::ShowPicture(QImage picture) {
    m_missing->hide();
    m_picture->SetPicture(std::move(picture));
    m_picture->show();
}

void SnapshotPane::ShowMissing() {
    m_picture->Clear();
    m_picture->hide();
    m_missing->show();
}

void SnapshotPane::ShowNothing() {
    m_picture->Clear();
    m_picture->hide();
    m_missing->hide();
}

} // namespace coinlight
