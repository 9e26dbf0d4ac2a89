#pragma once

#include <QByteArray>
#include <QString>

// The radio's end of a pseudo-terminal, with a symbolic link to the other end that programs open as a serial port.
// Raw from the start, so that nothing is echoed. The link goes with the object.
class PseudoTerminal {
  public:
    PseudoTerminal() = default;
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    // A link that is left over from a killed run is replaced; any other file at that path is refused. "" or what is
    // wrong.
    [[nodiscard]] QString open(const QString &linkPath);
    [[nodiscard]] int descriptor() const { return mMaster; }
    // The speed that the program at the other end has set, bit/s; 0 for one that the radio does not know.
    [[nodiscard]] int farSpeed() const;
    // What has arrived; empty when nothing has.
    [[nodiscard]] QByteArray read();
    // As many bytes as the system takes; the rest is for the caller to offer again.
    [[nodiscard]] qsizetype write(QByteArrayView bytes);

  private:
    [[nodiscard]] QString makeLink(const QString &linkPath);

    int mMaster = -1;
    int mSlave = -1; // kept open, so that the line survives programs that come and go
    QString mLink;
};
