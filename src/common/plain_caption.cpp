#include "plain_caption.h"

QString plainCaption(const QString &caption) {
    QString plain;
    plain.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool mark = caption.at(i) == u'&';
        if (mark && ++i == caption.size())
            break;
        plain += caption.at(i);
    }
    return plain;
}
