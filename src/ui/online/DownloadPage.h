#pragma once

#include <optional>

#include <QGroupBox>

#include "online/AssetDownload.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace coinlight {

/// The bulk download of artwork or samples for every machine: the choice of the two, the
/// Download button, the status line, and a Cancel button beside it while a job runs. A
/// maintainer's tool, shown only in a development run.
class DownloadPage final : public QGroupBox {
    Q_OBJECT
public:
    explicit DownloadPage(QWidget* parent = nullptr);

    /// The kind the option buttons choose; nothing while neither is on.
    std::optional<AssetKind> ChosenKind() const;

    /// Puts `text` in the status line and paints it at once.
    void ShowStatus(const QString& text);

    /// While a job runs the choice and Download rest and Cancel is open.
    void SetRunning(bool running);
    bool CancelRequested() const { return m_cancelRequested; }

signals:
    void DownloadClicked();

private:
    QRadioButton* m_artwork = nullptr;
    QRadioButton* m_samples = nullptr;
    QPushButton* m_download = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_cancel = nullptr;
    bool m_cancelRequested = false;
};

} // namespace coinlight
