#pragma once

#include "byte_line.h"

#include <QElapsedTimer>
#include <QFile>

// The bytes of one radio operation as text lines: seconds since its start, speed, direction, hex. The newest ten are
// kept. A trace that cannot be written is left out: it must not stop the operation.
class WireTrace final : public WireTap {
  public:
    static constexpr int kKept = 10;

    explicit WireTrace(const QString &folder);

    void sent(const QByteArray &bytes, int bitsPerSecond) override;
    void received(const QByteArray &bytes, int bitsPerSecond) override;

  private:
    void line(char direction, const QByteArray &bytes, int bitsPerSecond);

    QFile mFile;
    QElapsedTimer mTime;
};
