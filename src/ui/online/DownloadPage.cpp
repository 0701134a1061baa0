#include "DownloadPage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace coinlight {

namespace {

template <class Widget> Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace

DownloadPage::DownloadPage(QWidget* parent) : QGroupBox(QStringLiteral("Download"), parent) {
    setObjectName(QStringLiteral("fraDownload"));
    m_artwork = Named(new QRadioButton(QStringLiteral("Artwork"), this), "optArtDownload");
    m_samples = Named(new QRadioButton(QStringLiteral("Samples"), this), "optSamDownload");
    m_download = Named(new QPushButton(QStringLiteral("Download"), this), "cmdArtSamDL");
    m_download->setAutoDefault(false);
    m_status = Named(new QLabel(this), "lblDownloadStatus");
    m_status->setTextFormat(Qt::PlainText);
    m_status->setMinimumWidth(
        m_status->fontMetrics().horizontalAdvance(QStringLiteral("Trying abcdefghijklmnop.zip")));
    m_cancel = Named(new QPushButton(QStringLiteral("Cancel"), this), "cmdCancelDownload");
    m_cancel->setAutoDefault(false);
    m_cancel->setToolTip(QStringLiteral("Stops The Download"));
    m_cancel->setEnabled(false);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_artwork);
    layout->addWidget(m_samples);
    layout->addWidget(m_download);
    layout->addSpacing(12);
    layout->addWidget(m_status, 1);
    layout->addWidget(m_cancel);

    connect(m_download, &QPushButton::clicked, this, &DownloadPage::DownloadClicked);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancelRequested = true;
        m_cancel->setEnabled(false);
    });
}

std::optional<AssetKind> DownloadPage::ChosenKind() const {
    if (m_artwork->isChecked()) {
        return AssetKind::Artwork;
    }
    if (m_samples->isChecked()) {
        return AssetKind::Samples;
    }
    return std::nullopt;
}

void DownloadPage::ShowStatus(const QString& text) {
    m_status->setText(text);
    m_status->repaint();
}

void DownloadPage::SetRunning(bool running) {
    m_cancelRequested = false;
    for (QWidget* control : {static_cast<QWidget*>(m_artwork), static_cast<QWidget*>(m_samples),
                             static_cast<QWidget*>(m_download)}) {
        control->setEnabled(!running);
    }
    m_cancel->setEnabled(running);
}

} // namespace coinlight
