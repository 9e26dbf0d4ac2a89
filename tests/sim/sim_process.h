#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A kx4600sim of a test, from the folder that KX4600_BIN names. Ended with the object.
class SimProcess {
  public:
    SimProcess() = default;
    ~SimProcess();
    SimProcess(const SimProcess &) = delete;
    SimProcess &operator=(const SimProcess &) = delete;

    // Starts it with a link of its own (see link()) at full speed; false if it does not say "ready" in time.
    [[nodiscard]] bool start(const QStringList &options);
    // As start, with nothing added. False also when it ends at once.
    [[nodiscard]] bool startPlain(const QStringList &arguments);
    void kill();      // as a power cut
    void terminate(); // in an orderly way

    [[nodiscard]] QString link() const { return mFolder.filePath(QStringLiteral("radio")); }
    [[nodiscard]] QString image() const { return mFolder.filePath(QStringLiteral("image")); }
    [[nodiscard]] QProcess &process() { return mProcess; }
    // Of the image file: the bank in use.
    [[nodiscard]] QByteArray activeBank() const;
    // Of the line it says at its end: how often a fault took effect; -1 if it does not say.
    [[nodiscard]] int count(const QString &what);

  private:
    QTemporaryDir mFolder;
    QProcess mProcess;
    QByteArray mOutput;
};
