#include "campaign.h"
#include "component_listener.h"
#include "port_access.h"
#include "settings_store.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
const QString kField = QStringLiteral("EconomyTimer");
constexpr int kLeast = 10;
constexpr int kMost = 250;

// A component with one listener that answers Yes; every place is below the folder.
struct Window {
    explicit Window(const QString &folder)
        : transformer(
              {.settingsFile = {}, .journalFolder = {}, .stateFolder = {}, .restoreFolder = {}, .dataFolder = folder}) {
        transformer.AddListener(&listener);
    }
    bool save(const QString &path) {
        bool saved = false;
        transformer.SaveFile(path, QString(), 0, saved);
        return saved;
    }
    bool set(int value) {
        bool ok = false;
        transformer.SetValue(kField, value, 0, true, ok);
        return ok;
    }
    [[nodiscard]] int value() { return transformer.GetValue(kField, 0).toInt(); }

    ComponentListener listener;
    TransformerComponent transformer;
};

// What a saving process tells about itself, in memory that outlives it.
struct Progress {
    int saved = 0;  // value of the last save that has ended
    int saving = 0; // value of the save under way, 0 between two saves
};

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What a child found wrong, as its exit code.
enum Finding { kGood, kNotRefused, kNotDirty, kNotTold, kFileTouched, kNotAnotherUser, kOtherState };

// Work in a process that can write so many bytes to a file; a write beyond them fails as on a full disk.
int inFullPlace(rlim_t room, const std::function<int()> &work) {
    return Campaign::inChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{room, room};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? work() : int(kOtherState);
    });
}
} // namespace

// Saves that are killed, or that have no room or no rights.
class SavesCampaign : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void killedSaveLeavesTheOldOrTheNewFile();
    void placeWithoutRoomLeavesTheDataDirty_data();
    void placeWithoutRoomLeavesTheDataDirty();
    void settingsWithoutRoomStayWhole();
    void placeWithoutRightsLeavesTheDataDirty_data();
    void placeWithoutRightsLeavesTheDataDirty();
    void portWithoutRightsIsToldFromABusyOne_data();
    void portWithoutRightsIsToldFromABusyOne();

  private:
    static void saveForever(const QString &path, volatile Progress &progress);
    static int refusedSave(Window &window, const QString &path);
};

void SavesCampaign::saveForever(const QString &path, volatile Progress &progress) {
    Window window(QDir::rootPath());
    for (int value = progress.saved;;) {
        value = value >= kMost ? kLeast : value + 1;
        (void)window.set(value);
        progress.saving = value;
        if (!window.save(path))
            ::_exit(1);
        progress.saved = value;
        progress.saving = 0;
    }
}

void SavesCampaign::killedSaveLeavesTheOldOrTheNewFile() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.k4p"));
    void *shared = ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    QVERIFY(shared != MAP_FAILED);
    auto &progress = *new (shared) Progress;
    Window reader(folder.path());
    QVERIFY(reader.set(kLeast) && reader.save(path) && reader.save(path)); // the second one makes the backup
    progress.saved = kLeast;
    Campaign::Random random(200);
    Campaign::Tally tally;
    const int kills = Campaign::count(30, 200);
    for (int kill = 0; kill < kills; ++kill) {
        const int first = progress.saved;
        const pid_t child = ::fork();
        if (child == 0)
            saveForever(path, progress);
        QVERIFY(child > 0);
        // The start of the process does not count: the moment is random from its first save on.
        QTRY_VERIFY_WITH_TIMEOUT(static_cast<volatile Progress &>(progress).saving != 0 || progress.saved != first,
                                 20000);
        ::usleep(useconds_t(Campaign::below(random, 20000)));
        ::kill(child, SIGKILL);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY2(WIFSIGNALED(status), "the saving process ended by itself");
        reader.listener.clear();
        reader.transformer.ReadFile(path, 0, 0, false);
        QVERIFY2(reader.listener.messages.isEmpty(), qPrintable(reader.listener.messages.join(u' ')));
        const int found = reader.value();
        const bool isOld = found == progress.saved;
        QVERIFY2(isOld || found == progress.saving, QByteArray::number(found));
        const QString backup = path + QStringLiteral(".bak");
        reader.transformer.ReadFile(backup, 0, 0, false);
        QVERIFY2(reader.listener.messages.isEmpty(), qPrintable(reader.listener.messages.join(u' ')));
        tally.add(progress.saving == 0 ? QStringLiteral("between saves")
                                       : (isOld ? QStringLiteral("old") : QStringLiteral("new")));
        progress.saved = found;
        progress.saving = 0;
    }
    const QByteArray text = tally.text();
    qInfo("%d kills: %s", kills, text.constData());
    QVERIFY2(tally.of(QStringLiteral("old")) * 3 >= kills, "the kills hardly fell into saves");
}

// Edits, saves, and says what is wrong with how it was refused.
int SavesCampaign::refusedSave(Window &window, const QString &path) {
    const QByteArray before = contentOf(path);
    if (!window.set(77) || window.save(path))
        return kNotRefused;
    if (!window.transformer.GetDataIsDirty())
        return kNotDirty;
    const bool told = !window.listener.messages.isEmpty() && window.listener.messages.last().contains(path);
    if (!told)
        return kNotTold;
    return contentOf(path) == before ? kGood : kFileTouched;
}

void SavesCampaign::placeWithoutRoomLeavesTheDataDirty_data() {
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("percent"); // room for so much of the file
    for (const int percent : {0, 1, 50, 99}) {
        QTest::addRow("new file, %d %%", percent) << false << percent;
        QTest::addRow("replaced file, %d %%", percent) << true << percent;
    }
}

void SavesCampaign::placeWithoutRoomLeavesTheDataDirty() {
    QFETCH(bool, exists);
    QFETCH(int, percent);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.k4p"));
    Window window(folder.path());
    QVERIFY(window.save(path));
    const rlim_t room = rlim_t(contentOf(path).size()) * rlim_t(percent) / 100;
    QVERIFY(exists || QFile::remove(path));
    const int found = inFullPlace(room, [&] { return refusedSave(window, path); });
    QCOMPARE(found, int(kGood));
    QCOMPARE(QFile::exists(path), exists);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), exists ? 1 : 0);
}

void SavesCampaign::settingsWithoutRoomStayWhole() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    SettingsStore store(path);
    QVERIFY(store.setValue(QStringLiteral("Language"), QStringLiteral("English")));
    const QByteArray before = contentOf(path);
    const int found = inFullPlace(rlim_t(before.size()), [&] {
        const QString longer(2 * before.size(), u'x');
        return store.setValue(QStringLiteral("DataDirectory"), longer) ? kNotRefused : kGood;
    });
    QCOMPARE(found, int(kGood));
    QCOMPARE(contentOf(path), before);
}

void SavesCampaign::placeWithoutRightsLeavesTheDataDirty_data() {
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<int>("fileMode");
    QTest::newRow("read-only folder") << 0555 << 0644;
    QTest::newRow("read-only folder and file") << 0555 << 0444;
    QTest::newRow("file that may not be read") << 0555 << 0600;
}

void SavesCampaign::placeWithoutRightsLeavesTheDataDirty() {
    QFETCH(int, folderMode);
    QFETCH(int, fileMode);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.k4p"));
    Window window(folder.path());
    QVERIFY(window.save(path));
    const QByteArray before = contentOf(path);
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(fileMode)), 0);
    QCOMPARE(::chmod(QFile::encodeName(folder.path()).constData(), mode_t(folderMode)), 0);
    const int found = Campaign::inChild([&] {
        if (!Campaign::becomeNobody())
            return int(kNotAnotherUser);
        return refusedSave(window, path);
    });
    QCOMPARE(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    QCOMPARE(found, int(kGood));
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    QCOMPARE(contentOf(path), before);
}

void SavesCampaign::portWithoutRightsIsToldFromABusyOne_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("held");
    QTest::addColumn<QString>("text");
    QTest::newRow("no rights") << 0000 << false << "adduser";
    QTest::newRow("no rights, and busy") << 0000 << true << "adduser";
    QTest::newRow("busy") << 0666 << true << "in use by another program";
    QTest::newRow("free") << 0666 << false << "does not answer";
}

void SavesCampaign::portWithoutRightsIsToldFromABusyOne() {
    QFETCH(int, mode);
    QFETCH(bool, held);
    QFETCH(QString, text);
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    QVERIFY(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
    const QByteArray device = ::ptsname(master);
    PortLock lock;
    QVERIFY(!held || lock.take(QString::fromLocal8Bit(device)));
    QCOMPARE(::chmod(device.constData(), mode_t(mode)), 0);
    const int found = Campaign::inChild([&] {
        if (!Campaign::becomeNobody())
            return int(kNotAnotherUser);
        Window window(QDir::rootPath());
        window.transformer.SaveSetting(QStringLiteral("CommPortNumber"), QString::fromLocal8Bit(device));
        window.transformer.InterrogateRadio();
        const bool told = window.listener.messages.size() == 1 && window.listener.messages.first().contains(text);
        return int(told ? kGood : kNotTold);
    });
    ::close(master);
    QCOMPARE(found, int(kGood));
}

QTEST_GUILESS_MAIN(SavesCampaign)
#include "saves_campaign.moc"
