#include "csv_text.h"

#include "file_problem.h"

#include <QStringDecoder>

#include <algorithm>

namespace {
QString quoted(const QString &cell) {
    constexpr QStringView kSpecial = u",\"\r\n";
    if (std::ranges::none_of(cell, [&](QChar letter) { return kSpecial.contains(letter); }))
        return cell;
    return u'"' + QString(cell).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

class Reader {
  public:
    Reader(QString path, QString text) : mPath(std::move(path)), mText(std::move(text)) {}

    std::vector<QStringList> rows() {
        while (mAt < mText.size())
            readRow();
        return std::move(mRows);
    }

  private:
    [[nodiscard]] bool atLineEnd() const {
        return mAt == mText.size() || mText[mAt] == u'\n' || QStringView(mText).sliced(mAt).startsWith(u"\r\n");
    }
    void skipLineEnd() {
        mAt += mAt < mText.size() && mText[mAt] == u'\r' ? 2 : 1;
        ++mLine;
    }
    void readRow() {
        if (atLineEnd()) {
            skipLineEnd();
            return;
        }
        QStringList cells{readCell()};
        while (!atLineEnd()) {
            ++mAt; // the comma
            cells.append(readCell());
        }
        skipLineEnd();
        mRows.push_back(cells);
    }
    QString readCell() {
        QString cell = mAt < mText.size() && mText[mAt] == u'"' ? readQuoted() : readPlain();
        if (!atLineEnd() && mText[mAt] != u',')
            broken(QStringLiteral("something stands behind a closing quote"));
        return cell;
    }
    QString readPlain() {
        const qsizetype start = mAt;
        while (!atLineEnd() && mText[mAt] != u',') {
            if (mText[mAt] == u'"' || mText[mAt] == u'\r')
                broken(QStringLiteral("a quote or carriage return stands in a cell without quotes"));
            ++mAt;
        }
        return mText.sliced(start, mAt - start);
    }
    QString readQuoted() {
        QString cell;
        for (++mAt; mAt < mText.size(); ++mAt) {
            const bool isQuote = mText[mAt] == u'"';
            const bool isDoubled = isQuote && mAt + 1 < mText.size() && mText[mAt + 1] == u'"';
            if (isQuote && !isDoubled) {
                ++mAt;
                return cell;
            }
            mAt += isDoubled ? 1 : 0;
            mLine += mText[mAt] == u'\n' ? 1 : 0;
            cell += mText[mAt];
        }
        broken(QStringLiteral("a quote is not closed"));
    }
    [[noreturn]] void broken(const QString &reason) const {
        throw FileProblem(QStringLiteral("The file %0:S is no table of comma separated values: line %1:S: %2:S."),
                          {mPath, QString::number(mLine), reason});
    }

    QString mPath;
    QString mText;
    qsizetype mAt = 0;
    int mLine = 1;
    std::vector<QStringList> mRows;
};
} // namespace

QByteArray CsvText::write(const std::vector<QStringList> &rows) {
    QByteArray bytes;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(quoted(cell));
        // A row of one empty cell would be an empty line.
        const QString line = row.size() == 1 && row.first().isEmpty() ? QStringLiteral("\"\"") : cells.join(u',');
        bytes += line.toUtf8() + "\r\n";
    }
    return bytes;
}

std::vector<QStringList> CsvText::read(const QString &path, const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        throw FileProblem(QStringLiteral("The file %0:S is no UTF-8 text."), {path});
    return Reader(path, std::move(text)).rows();
}
