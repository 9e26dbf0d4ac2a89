#include "radio_run.h"

#include "component_listener.h"
#include "run_records.h"

namespace {
constexpr int kPatience = 60000; // milliseconds
const QString kBasic = QStringLiteral("Basic");
} // namespace

bool RadioRun::start(const QStringList &radioOptions) {
    const QStringList always{QStringLiteral("--link"), mRadio.link(), QStringLiteral("--image"), mRadio.image(),
                             QStringLiteral("--tier"), kBasic};
    if (!mRadio.startPlain(always + radioOptions))
        return false;
    mBefore = mRadio.activeBank();
    startTool(mProgrammer, {QStringLiteral("program"), mDataFile});
    return mProgrammer.waitForStarted();
}

void RadioRun::startTool(QProcess &process, const QStringList &words) const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), mFolder.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600ctl"),
                  words + QStringList{QStringLiteral("--yes"), QStringLiteral("--port"), mRadio.link()});
}

void RadioRun::killProgrammer() {
    mProgrammer.kill();
    (void)waitForProgrammer(kPatience);
}

qsizetype RadioRun::linesSaid() {
    (void)mProgrammer.waitForReadyRead(1);
    mSaid += QString::fromUtf8(mProgrammer.readAll());
    return mSaid.count(u'\n');
}

bool RadioRun::waitForProgrammer(int milliseconds) {
    const bool ended = mProgrammer.state() == QProcess::NotRunning || mProgrammer.waitForFinished(milliseconds);
    mSaid += QString::fromUtf8(mProgrammer.readAll());
    return ended;
}

bool RadioRun::hasOpenRun() const { return !RunRecords(stateFolder()).serialNumbers().isEmpty(); }

QString RadioRun::nextContact() {
    mRadio.kill();
    const bool ready = mRadio.start({QStringLiteral("--image"), mRadio.image(), QStringLiteral("--tier"), kBasic});
    QProcess tool;
    startTool(tool, {QStringLiteral("interrogate")});
    const bool answered = ready && tool.waitForFinished(kPatience) && tool.exitCode() == 0;
    const QString said = QString::fromUtf8(tool.readAll());
    return answered ? said : QStringLiteral("no contact: ") + said;
}

QStringList RadioRun::nextStart() const {
    TransformerComponent window({.settingsFile = {},
                                 .journalFolder = {},
                                 .stateFolder = stateFolder(),
                                 .restoreFolder = {},
                                 .dataFolder = mFolder.path()});
    ComponentListener listener;
    window.AddListener(&listener);
    window.StartUp();
    return listener.messages;
}
