#include "SingleInstance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QLoggingCategory>

namespace coinlight {

Q_LOGGING_CATEGORY(lcInstance, "coinlight.instance", QtWarningMsg)

namespace {

constexpr int kConnectMilliseconds = 1000;
const QByteArray kRaiseRequest = QByteArrayLiteral("raise\n");

} // namespace

QString SingleInstance::ServerName(const std::filesystem::path& dataFolder) {
    const QByteArray digest =
        QCryptographicHash::hash(QByteArray::fromStdString(dataFolder.string()),
                                 QCryptographicHash::Sha1)
            .toHex()
            .left(16);
    return QStringLiteral("coinlight-%1-%2").arg(::getuid()).arg(QString::fromLatin1(digest));
}

SingleInstance::SingleInstance(const std::filesystem::path& dataFolder, QObject* parent)
    : QObject(parent), m_name(ServerName(dataFolder)) {
    // Two starts at the same moment must not both decide that they are the first.
    m_startLock =
        std::make_unique<QLockFile>(QDir::temp().filePath(m_name + QStringLiteral(".lock")));
    m_startLock->setStaleLockTime(5000);
    m_startLock->tryLock(5000);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::AcceptConnections);
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::ActivatePreviousInstance() {
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(kConnectMilliseconds)) {
        return false;
    }
    socket.write(kRaiseRequest);
    socket.waitForBytesWritten(kConnectMilliseconds);
    socket.disconnectFromServer();
    qCInfo(lcInstance) << "another Coinlight runs; asked it to come to the front";
    return true;
}

bool SingleInstance::Listen() {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    bool listening = m_server.listen(m_name);
    if (!listening && m_server.serverError() == QAbstractSocket::AddressInUseError) {
        // A socket left behind by a Coinlight that crashed: nobody answered it above.
        QLocalServer::removeServer(m_name);
        listening = m_server.listen(m_name);
    }
    m_startLock->unlock();
    if (!listening) {
        qCWarning(lcInstance) << "cannot guard against a second start:" << m_server.errorString();
    }
    return listening;
}

void SingleInstance::AcceptConnections() {
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (socket->readAll().contains(kRaiseRequest.trimmed())) {
                qCInfo(lcInstance) << "raise requested by another start";
                emit RaiseRequested();
            }
        });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }
}

} // namespace coinlight
