#include "frmSplash.h"

#include <QGridLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

#include "core/Version.h"

namespace coinlight {

namespace {

constexpr int kPictureWidth = 460;
constexpr int kPictureHeight = 150;

/// The built-in picture: the program's name over a night-sky gradient.
QPixmap BuiltInPicture() {
    QPixmap picture(kPictureWidth, kPictureHeight);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, kPictureHeight);
    sky.setColorAt(0.0, QColor(12, 18, 48));
    sky.setColorAt(1.0, QColor(70, 24, 96));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(QColor(255, 214, 90));
    QFont title(QStringLiteral("Verdana"), 34, QFont::Bold);
    painter.setFont(title);
    painter.drawText(picture.rect(), Qt::AlignCenter, QStringLiteral("Coinlight"));
    return picture;
}

} // namespace

frmSplash::frmSplash(const std::filesystem::path& appFolder, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Coinlight"));

    m_picture = AddLabel("picSplash", {});
    const QString custom = QString::fromStdString((appFolder / "splash.jpg").string());
    QPixmap picture;
    if (!picture.load(custom)) {
        picture = BuiltInPicture();
    }
    m_picture->setPixmap(picture.scaled(kPictureWidth, kPictureHeight, Qt::KeepAspectRatio,
                                        Qt::SmoothTransformation));
    m_picture->setAlignment(Qt::AlignCenter);

    auto* grid = new QGridLayout;
    grid->addWidget(AddLabel("lblVCaption", QStringLiteral("Version:")), 0, 0);
    m_version = AddLabel("lblVersion", QString::fromLatin1(kCoinlightVersion));
    grid->addWidget(m_version, 0, 1);
    grid->addWidget(AddLabel("lblArcade", QStringLiteral("Arcade Machines:")), 1, 0);
    m_arcadeCount = AddLabel("lblArcadeCount", {});
    grid->addWidget(m_arcadeCount, 1, 1);
    m_other = AddLabel("lblOther", QStringLiteral("Please stand by..."));
    grid->addWidget(m_other, 2, 0);
    m_otherCount = AddLabel("lblOtherCount", {});
    grid->addWidget(m_otherCount, 2, 1);
    grid->setColumnStretch(1, 1);

    m_message = AddLabel("lblMessage", {});
    m_messageOptions = AddLabel("lblMessageOptions", {});
    QLabel* credit = AddLabel("lblCredit", QStringLiteral("A MAME front-end"));
    credit->setAlignment(Qt::AlignRight);
    credit->setEnabled(false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picture);
    layout->addLayout(grid);
    layout->addWidget(m_message);
    layout->addWidget(m_messageOptions);
    layout->addWidget(credit);
    setFixedWidth(kPictureWidth + 24);
}

QLabel* frmSplash::AddLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

void frmSplash::SetMessage(const QString& text) {
    m_message->setText(text);
    m_message->repaint();
}

void frmSplash::SetMessageOptions(const QString& text) {
    m_messageOptions->setText(text);
    m_messageOptions->repaint();
}

void frmSplash::SetArcadeCount(const QString& text) {
    m_arcadeCount->setText(text);
    RepaintCount(m_arcadeCount);
}

void frmSplash::SetOtherCount(const QString& text) {
    m_otherCount->setText(text);
    RepaintCount(m_otherCount);
}

void frmSplash::RepaintCount(QLabel* count) {
    // A count changes every 25 machines, hundreds of times a second: painting each one
    // would cost more than the loading it reports, and no eye could follow it.
    if (!m_sinceCountPainted.isValid() || m_sinceCountPainted.elapsed() >= 40) {
        count->repaint();
        m_sinceCountPainted.restart();
    } else {
        count->update();
    }
}

void frmSplash::SetOtherCaption(const QString& text) {
    m_other->setText(text);
}

} // namespace coinlight
