#include "downloader.h"

#include "string_utilities.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <utility>

namespace {
const QString kName = QStringLiteral("Kx4000_SDAC");
constexpr int kAttachMs = 500;
constexpr int kRetryEveryMs = 50;
constexpr int kRetryForMs = 3000;

// The window stays painted while the downloader starts, but takes no input.
void waitALittle() {
    QEventLoop loop;
    QTimer::singleShot(kRetryEveryMs, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}
} // namespace

LocalDownloader::LocalDownloader(QString folder) : mFolder(std::move(folder)) {}

bool LocalDownloader::IsAttached() const { return mSocket.state() == QLocalSocket::ConnectedState; }

bool LocalDownloader::Attach() {
    mSocket.abort();
    mSocket.connectToServer(kName);
    return mSocket.waitForConnected(kAttachMs);
}

bool LocalDownloader::Create() {
    if (!QProcess::startDetached(program(), {}))
        return false;
    for (const QDeadlineTimer deadline(kRetryForMs); !deadline.hasExpired(); waitALittle()) {
        if (Attach())
            return true;
    }
    return false;
}

QString LocalDownloader::program() const {
    QString folder = mFolder.isEmpty() ? QCoreApplication::applicationDirPath() : mFolder;
    if (mFolder.isEmpty() && IsExecutingFromIDE())
        folder += QStringLiteral("/../../Extras");
    return folder + u'/' + kName;
}

void LocalDownloader::SetRadioType(int type) { send("RadioType " + QByteArray::number(type)); }

void LocalDownloader::SetPort(const QString &number, bool show) {
    send("SetPort " + number.toUtf8() + (show ? " true" : " false"));
}

void LocalDownloader::send(const QByteArray &line) {
    mSocket.write(line + '\n');
    mSocket.flush();
}
