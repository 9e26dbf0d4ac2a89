#include "text_page_sink.h"

#include <cmath>

namespace {
constexpr double kWidth = 0.2116669; // of a character, in centimetres
constexpr double kHeight = 0.3563059;
constexpr double kMargin = 2.0;
// So that rounding decides neither the last column nor the last line.
constexpr double kHalf = 0.5;
// Behind a rule the lines stand half a line lower; all of them go down to the next whole one.
constexpr double kTolerance = 0.001;
} // namespace

QString TextPageSink::textOf(const Pages &pages) {
    QStringList texts;
    for (const QStringList &page : pages)
        texts << page.join(u'\n') + u'\n';
    return texts.join(u'\f');
}

QStringList TextPageSink::Fonts() const { return {QStringLiteral("Courier"), QStringLiteral("MS Mincho")}; }

PageFrame TextPageSink::Frame() const {
    const double limit = kMargin + (mSize.lines + kHalf) * kHeight;
    return {0, 0, (mSize.columns + kHalf) * kWidth + 2 * kMargin, limit + 2 * kMargin};
}

double TextPageSink::TextWidth(const QString &text) const { return double(text.size()) * kWidth; }
double TextPageSink::TextHeight() const { return kHeight; }

void TextPageSink::BeginDocument() { mPages.assign(1, {}); }
void TextPageSink::NewPage() { mPages.emplace_back(); }

void TextPageSink::PrintText(double x, double y, const QString &text) { put(x, y, text); }

void TextPageSink::PrintRule(double left, double right, double y) {
    put(left, y, QString(qsizetype(std::floor((right - left) / kWidth)), u'-'));
}

void TextPageSink::put(double x, double y, const QString &text) {
    const auto row = qsizetype(std::floor((y - kMargin) / kHeight + kHalf + kTolerance));
    const auto column = qsizetype(std::floor((x - kMargin) / kWidth + kHalf));
    QStringList &lines = mPages.back();
    while (lines.size() <= row)
        lines.append(QString());
    QString &line = lines[row];
    line = line.leftJustified(column).replace(column, text.size(), text);
    while (line.endsWith(u' '))
        line.chop(1);
}
