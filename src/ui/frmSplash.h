#pragma once

#include <filesystem>

#include <QElapsedTimer>
#include <QLabel>
#include <QWidget>

namespace coinlight {

/// The window shown while the catalogue and the lists load. Other parts of the program
/// write their progress into its message labels and counts.
class frmSplash final : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(const std::filesystem::path& appFolder, QWidget* parent = nullptr);

    void SetMessage(const QString& text);
    void SetMessageOptions(const QString& text);
    void SetArcadeCount(const QString& text);
    void SetOtherCount(const QString& text);
    void SetOtherCaption(const QString& text);

private:
    QLabel* AddLabel(const char* name, const QString& text);
    void RepaintCount(QLabel* count);

    QLabel* m_picture = nullptr;
    QLabel* m_version = nullptr;
    QLabel* m_arcadeCount = nullptr;
    QLabel* m_other = nullptr;
    QLabel* m_otherCount = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_messageOptions = nullptr;
    QElapsedTimer m_sinceCountPainted;
};

} // namespace coinlight
