#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// The memory of the simulated radio: two banks, one of them active. With a file behind it, each change is handed to
// the system before the call returns, so that a kill at any moment leaves what a power cut would leave.
//
// The file: "KX46BANK", layout number (2 bytes), tier (1), 0, bytes of one bank (4), number of the active bank (1: 0 or
// 1), zeros up to byte 32, then bank 0 and bank 1. Numbers most significant byte first.
class RadioMemory {
  public:
    // Without a file: both banks in memory only.
    RadioMemory(quint16 layout, quint8 tier, const QByteArray &fresh);

    // Takes over the content of the file, or creates it with the fresh content. "" or what is wrong with the file.
    [[nodiscard]] QString attach(const QString &path);

    [[nodiscard]] quint32 size() const { return quint32(mBanks[0].size()); }
    [[nodiscard]] quint16 layout() const { return mLayout; }
    [[nodiscard]] const QByteArray &active() const { return mBanks[mActive]; }
    [[nodiscard]] const QByteArray &second() const { return mBanks[1 - mActive]; }
    // False if the block leaves the bank or the file did not take it.
    [[nodiscard]] bool writeSecond(quint32 offset, const QByteArray &data);
    // The second bank becomes the active one. False if the file did not take it: nothing has changed then.
    [[nodiscard]] bool switchBanks();

  private:
    [[nodiscard]] bool store(qint64 at, const QByteArray &data);
    [[nodiscard]] QByteArray header() const;
    [[nodiscard]] QString create(const QString &path);

    quint16 mLayout;
    quint8 mTier;
    QByteArray mBanks[2];
    int mActive = 0;
    QFile mFile;
};
