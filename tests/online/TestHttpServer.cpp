#include "TestHttpServer.h"

#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

namespace coinlight::test {

namespace {

std::string StatusText(int status) {
    switch (status) {
    case 200:
        return "OK";
    case 404:
        return "Not Found";
    case 500:
        return "Internal Server Error";
    default:
        return "Status";
    }
}

std::string Head(int status, std::size_t length) {
    return "HTTP/1.1 " + std::to_string(status) + " " + StatusText(status) +
           "\r\nContent-Type: text/plain\r\nContent-Length: " + std::to_string(length) +
           "\r\nConnection: close\r\n\r\n";
}

void Send(QTcpSocket* socket, const std::string& bytes) {
    socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

} // namespace

TestHttpServer::TestHttpServer() {
    m_server.listen(QHostAddress::LocalHost);
    connect(&m_server, &QTcpServer::newConnection, this, &TestHttpServer::Accept);
}

std::string TestHttpServer::Url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + path;
}

quint16 TestHttpServer::ClosedPort() {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    const quint16 port = probe.serverPort();
    probe.close();
    return port;
}

void TestHttpServer::Accept() {
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        auto* request = new std::string;
        connect(socket, &QObject::destroyed, this, [request] { delete request; });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, request] {
            const bool complete = request->find("\r\n\r\n") != std::string::npos;
            request->append(socket->readAll().toStdString());
            if (!complete && request->find("\r\n\r\n") != std::string::npos) {
                Respond(socket, *request);
            }
        });
    }
}

void TestHttpServer::Respond(QTcpSocket* socket, const std::string& request) {
    const auto pathStart = request.find(' ') + 1;
    const std::string path = request.substr(pathStart, request.find(' ', pathStart) - pathStart);
    m_requests.push_back(path);
    m_lastHeaders = request;
    const auto found = m_answers.find(path);
    const Answer answer = found != m_answers.end() ? found->second : Answer{"no such page", 404};
    const std::string whole = Head(answer.status, answer.body.size()) + answer.body;
    switch (answer.manner) {
    case Manner::Whole:
        Send(socket, whole);
        socket->disconnectFromHost();
        break;
    case Manner::Silent:
        break;
    case Manner::Slowly:
        Trickle(socket, whole, answer.pieceSize, answer.interval);
        break;
    case Manner::CutShort:
        Send(socket, Head(answer.status, answer.body.size()) +
                         answer.body.substr(0, answer.body.size() / 2));
        socket->disconnectFromHost();
        break;
    }
}

void TestHttpServer::Trickle(QTcpSocket* socket, std::string rest, std::size_t pieceSize,
                             std::chrono::milliseconds interval) {
    Send(socket, rest.substr(0, pieceSize));
    if (rest.size() <= pieceSize) {
        socket->disconnectFromHost();
        return;
    }
    QPointer<QTcpSocket> alive(socket);
    QTimer::singleShot(interval, this,
                       [this, alive, rest = rest.substr(pieceSize), pieceSize, interval] {
                           if (alive) {
                               Trickle(alive, rest, pieceSize, interval);
                           }
                       });
}

} // namespace coinlight::test
