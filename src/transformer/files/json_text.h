#pragma once

#include <QByteArrayView>
#include <QJsonValue>
#include <QString>

#include <optional>

// JSON read without a tree of it: a text is checked once as a whole; after that each value is a view of its part of
// the text, which lives as long as the text. The tree of a full data file would cost most of the time of a load.
namespace JsonText {
// Deepest nesting of a sound text; what is nested deeper is no data file of anybody.
inline constexpr int kDeepest = 512;

// Byte of the first fault, for a text that is not one JSON value. The encoding is not looked at.
[[nodiscard]] std::optional<qsizetype> fault(QByteArrayView text);

// All others take values of a sound text.
[[nodiscard]] bool isObject(QByteArrayView value);
[[nodiscard]] bool isArray(QByteArrayView value);
// Nothing for a value of another kind, and for a number that no double holds.
[[nodiscard]] std::optional<QString> string(QByteArrayView value);
[[nodiscard]] std::optional<double> number(QByteArrayView value);
// Any value, as a tree.
[[nodiscard]] QJsonValue tree(QByteArrayView value);
} // namespace JsonText

// Walks the parts of an object or array in their order. Another value has none.
class JsonParts {
  public:
    struct Part {
        QByteArrayView key; // of an object: as it stands between the quotation marks; empty in an array
        QByteArrayView value;

        [[nodiscard]] QString name() const; // the key, its escapes resolved
    };

    explicit JsonParts(QByteArrayView whole);
    // Nothing behind the last one.
    [[nodiscard]] std::optional<Part> next();

  private:
    void skipBlanks();
    [[nodiscard]] QByteArrayView takeValue();

    QByteArrayView mWhole;
    qsizetype mAt = 1;
};
