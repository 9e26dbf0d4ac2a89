#include "word_wrap.h"

qsizetype WrapPosition(const QString &text, qsizetype characters) {
    const qsizetype blank = text.lastIndexOf(u' ', characters - 1);
    return blank < 0 ? characters : blank + 1;
}
