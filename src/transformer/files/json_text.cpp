#include "json_text.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <charconv>

namespace {
bool isBlank(char letter) { return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t'; }
bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool isHexDigit(char letter) { return isDigit(letter) || QByteArrayView("abcdefABCDEF").contains(letter); }

// Follows the grammar from the first byte to the first fault.
class Checker {
  public:
    explicit Checker(QByteArrayView text) : mText(text) {}

    [[nodiscard]] std::optional<qsizetype> run() {
        const bool isValue = value();
        if (isValue)
            skipBlanks();
        return isValue && mAt == mText.size() ? std::nullopt : std::optional(mAt);
    }

  private:
    // 0 at the end.
    [[nodiscard]] char here() const { return mAt < mText.size() ? mText[mAt] : '\0'; }
    void skipBlanks() {
        while (isBlank(here()))
            ++mAt;
    }
    bool take(char wanted) {
        const bool found = here() == wanted;
        mAt += found ? 1 : 0;
        return found;
    }

    bool value() {
        skipBlanks();
        switch (here()) {
        case '{':
            return nested('}', [this] { return member(); });
        case '[':
            return nested(']', [this] { return value(); });
        case '"':
            return string();
        case 't':
            return word("true");
        case 'f':
            return word("false");
        case 'n':
            return word("null");
        default:
            return number();
        }
    }

    template <class Part>
    bool nested(char end, Part part) {
        ++mAt;
        if (++mDepth > JsonText::kDeepest)
            return false;
        skipBlanks();
        bool closed = take(end);
        while (!closed) {
            if (!part())
                return false;
            skipBlanks();
            closed = take(end);
            if (!closed && !take(','))
                return false;
        }
        --mDepth;
        return true;
    }

    bool member() {
        skipBlanks();
        if (here() != '"' || !string())
            return false;
        skipBlanks();
        return take(':') && value();
    }

    bool string() {
        for (++mAt; mAt < mText.size(); ++mAt) {
            if (mText[mAt] == '"') {
                ++mAt;
                return true;
            }
            const bool isControl = static_cast<unsigned char>(mText[mAt]) < ' ';
            if (isControl || (mText[mAt] == '\\' && !escape()))
                return false;
        }
        return false;
    }

    // Ends at the last letter of the escape.
    bool escape() {
        constexpr int kHexDigits = 4;
        ++mAt;
        if (here() != 'u')
            return here() != '\0' && QByteArrayView("\"\\/bfnrt").contains(here());
        for (int digit = 0; digit < kHexDigits; ++digit) {
            ++mAt;
            if (!isHexDigit(here()))
                return false;
        }
        return true;
    }

    bool word(QByteArrayView wanted) {
        const bool found = mText.sliced(mAt).startsWith(wanted);
        mAt += found ? wanted.size() : 0;
        return found;
    }

    bool digits() {
        const qsizetype first = mAt;
        while (isDigit(here()))
            ++mAt;
        return mAt > first;
    }

    bool number() {
        (void)take('-');
        const bool whole = take('0') || digits();
        if (!whole || (take('.') && !digits()))
            return false;
        if (!take('e') && !take('E'))
            return true;
        (void)(take('+') || take('-'));
        return digits();
    }

    QByteArrayView mText;
    qsizetype mAt = 0;
    int mDepth = 0;
};

// Behind the closing quotation mark of the string that begins at start.
qsizetype endOfString(QByteArrayView text, qsizetype start) {
    const qsizetype mark = text.indexOf('"', start + 1);
    if (text[mark - 1] != '\\')
        return mark + 1;
    qsizetype at = start + 1;
    while (text[at] != '"')
        at += text[at] == '\\' ? 2 : 1;
    return at + 1;
}

// What a bracket adds to the depth, by character.
constexpr std::array<int, 256> kDepths = [] {
    std::array<int, 256> depths{};
    depths['{'] = depths['['] = 1;
    depths['}'] = depths[']'] = -1;
    return depths;
}();

qsizetype endOfNested(QByteArrayView text, qsizetype start) {
    qsizetype at = start;
    int depth = 0;
    do {
        depth += kDepths[static_cast<unsigned char>(text[at])];
        at = text[at] == '"' ? endOfString(text, at) : at + 1;
    } while (depth > 0);
    return at;
}

qsizetype endOfWord(QByteArrayView text, qsizetype start) {
    qsizetype at = start;
    while (at < text.size() && text[at] != ',' && text[at] != '}' && text[at] != ']' && !isBlank(text[at]))
        ++at;
    return at;
}

bool beginsWith(QByteArrayView value, char mark) { return !value.isEmpty() && value.front() == mark; }
} // namespace

namespace JsonText {
std::optional<qsizetype> fault(QByteArrayView text) { return Checker(text).run(); }

bool isObject(QByteArrayView value) { return beginsWith(value, '{'); }

bool isArray(QByteArrayView value) { return beginsWith(value, '['); }

std::optional<QString> string(QByteArrayView value) {
    if (!beginsWith(value, '"'))
        return std::nullopt;
    return value.contains('\\') ? tree(value).toString() : QString::fromUtf8(value.sliced(1).chopped(1));
}

std::optional<double> number(QByteArrayView value) {
    const char *end = value.data() + value.size();
    qint64 whole = 0;
    if (const auto [last, error] = std::from_chars(value.data(), end, whole); error == std::errc() && last == end)
        return double(whole);
    double number = 0;
    const auto [last, error] = std::from_chars(value.data(), end, number);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

QJsonValue tree(QByteArrayView value) { return QJsonDocument::fromJson('[' + value.toByteArray() + ']').array().at(0); }
} // namespace JsonText

QString JsonParts::Part::name() const {
    // The quotation marks stand around the view.
    return key.contains('\\') ? JsonText::tree({key.data() - 1, key.size() + 2}).toString() : QString::fromUtf8(key);
}

JsonParts::JsonParts(QByteArrayView whole)
    : mWhole(JsonText::isObject(whole) || JsonText::isArray(whole) ? whole : QByteArrayView("[]")) {}

std::optional<JsonParts::Part> JsonParts::next() {
    skipBlanks();
    if (mWhole[mAt] == ',')
        ++mAt;
    skipBlanks();
    if (mWhole[mAt] == '}' || mWhole[mAt] == ']')
        return std::nullopt;
    Part part;
    if (JsonText::isObject(mWhole)) {
        part.key = takeValue().sliced(1).chopped(1);
        skipBlanks();
        ++mAt; // the colon
        skipBlanks();
    }
    part.value = takeValue();
    return part;
}

void JsonParts::skipBlanks() {
    while (isBlank(mWhole[mAt]))
        ++mAt;
}

QByteArrayView JsonParts::takeValue() {
    const qsizetype start = mAt;
    switch (mWhole[start]) {
    case '"':
        mAt = endOfString(mWhole, start);
        break;
    case '{':
    case '[':
        mAt = endOfNested(mWhole, start);
        break;
    default:
        mAt = endOfWord(mWhole, start);
    }
    return mWhole.sliced(start, mAt - start);
}
