#include "currency.h"

#include <cmath>

Currency Currency::fromDouble(double value) { return fromTenThousandths(qint64(std::nearbyint(value * 10000.0))); }

QString Currency::toString() const {
    const quint64 magnitude = mCount < 0 ? quint64(0) - quint64(mCount) : quint64(mCount);
    QString text = QString::number(magnitude / 10000);
    if (const quint64 fraction = magnitude % 10000; fraction != 0) {
        QString decimals = QString::number(fraction).rightJustified(4, u'0');
        while (decimals.endsWith(u'0'))
            decimals.chop(1);
        text += u'.' + decimals;
    }
    return mCount < 0 ? u'-' + text : text;
}
