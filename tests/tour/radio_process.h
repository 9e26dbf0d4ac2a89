#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

// A simulated radio in a process of its own, on a link in a temporary folder. Ends with this object.
class RadioProcess {
  public:
    // programs: the folder of kx4600sim. Fails if the radio is not ready in time.
    RadioProcess(const QString &programs, const QString &folder, const QString &serialNumber);
    ~RadioProcess();
    Q_DISABLE_COPY_MOVE(RadioProcess)

    [[nodiscard]] const QString &link() const { return mLink; }

  private:
    QString mLink;
    QProcess mProcess;
};

// Runs a program to its end and gives its standard output; fails on another exit code than 0.
QString outputOf(const QString &program, const QStringList &arguments);
