#pragma once

#include <filesystem>
#include <memory>

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

namespace coinlight {

/// One Coinlight per user and data folder. The first start listens on a local socket; a
/// later start finds it, asks it to come to the front, and leaves before any window of its
/// own appears.
class SingleInstance final : public QObject {
    Q_OBJECT
public:
    explicit SingleInstance(const std::filesystem::path& dataFolder, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// The socket name: per user and per data folder.
    static QString ServerName(const std::filesystem::path& dataFolder);

    /// True when another instance runs; it has been asked to raise its window.
    bool ActivatePreviousInstance();

    /// Becomes the running instance. False if the socket cannot be made (the program then
    /// simply runs without the guard).
    bool Listen();

signals:
    void RaiseRequested();

private:
    void AcceptConnections();

    QString m_name;
    std::unique_ptr<QLockFile> m_startLock;
    QLocalServer m_server;
};

} // namespace coinlight
