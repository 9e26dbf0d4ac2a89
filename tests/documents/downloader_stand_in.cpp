#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

namespace {
constexpr int kStartMs = 500;

void keep(const QByteArray &bytes) {
    QFile told(QDir::tempPath() + QStringLiteral("/told"));
    if (told.open(QIODevice::Append))
        told.write(bytes);
    if (bytes.startsWith("SetPort end"))
        QCoreApplication::quit();
}
} // namespace

// Listens as the downloader does, half a second late; writes what it is told into a file beside its socket.
int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QTimer::singleShot(60000, &application, &QCoreApplication::quit);
    QLocalServer server;
    QObject::connect(&server, &QLocalServer::newConnection, &server, [&server] {
        QLocalSocket *socket = server.nextPendingConnection();
        QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] { keep(socket->readAll()); });
    });
    QTimer::singleShot(kStartMs, &server, [&server] { server.listen(QStringLiteral("Kx4000_SDAC")); });
    return QCoreApplication::exec();
}
