#include "caption_fit.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {
// The pieces between which a label may break a line, with the blanks at their ends.
QStringList pieces(const QString &text) {
    QStringList result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype from = 0;
    for (qsizetype to = finder.toNextBoundary(); to > 0; to = finder.toNextBoundary()) {
        result.push_back(text.mid(from, to - from));
        from = to;
    }
    return result;
}
} // namespace

namespace CaptionFit {
int lines(const Measure &measure, const QString &text, Twips width) {
    int result = 0;
    QString line;
    for (const QString &piece : pieces(text.trimmed())) {
        const QString longer = line + piece;
        const bool fits = measure(longer.trimmed()) <= width;
        result += line.isEmpty() || !fits ? 1 : 0;
        line = fits || line.isEmpty() ? longer : piece;
    }
    return result;
}

Twips widestWord(const Measure &measure, const QString &text) {
    Twips widest;
    for (const QString &piece : pieces(text))
        widest = std::max(widest, measure(piece.trimmed()));
    return widest;
}
} // namespace CaptionFit
