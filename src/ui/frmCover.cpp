#include "frmCover.h"

#include <QVBoxLayout>

namespace coinlight {

frmCover::frmCover(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    setObjectName(QStringLiteral("frmCover"));
    m_preparing = new QLabel(QStringLiteral("Preparing View..."), this);
    m_preparing->setObjectName(QStringLiteral("lblPreparing"));
    m_preparing->setAlignment(Qt::AlignCenter);
    QFont font = m_preparing->font();
    font.setPointSize(font.pointSize() + 4);
    m_preparing->setFont(font);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_preparing);
    setAutoFillBackground(true);
}

void frmCover::ShowOver(const QRect& area, const QColor& colour) {
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, colour);
    setPalette(palette);
    setGeometry(area);
    show();
    raise();
}

void frmCover::MakeTransparent() {
    m_preparing->hide();
    setAttribute(Qt::WA_TranslucentBackground);
    setAutoFillBackground(false);
}

} // namespace coinlight
