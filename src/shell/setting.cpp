#include "setting.h"

#include "transformer.h"
#include "value_text.h"

qint32 Setting::integer(Transformer &transformer, const QString &key, qint32 fallback) {
    return ValueText::toIntegerOr(transformer.GetSetting(key, fallback), fallback);
}
