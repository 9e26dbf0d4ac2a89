#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

// Wrong usage of the program: exit code 2.
class UsageError : public std::runtime_error {
  public:
    explicit UsageError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

// The arguments behind a command's name, split into options and the rest. "--name value", "--name=value" and "-o value"
// are options with a value; "--" ends the options.
class Arguments {
  public:
    // Names of the options that take a value, and of those that take none. Raises UsageError for any other option, a
    // missing value or an option given twice.
    Arguments(const QStringList &words, const QStringList &valued, const QStringList &flags);

    [[nodiscard]] bool has(const QString &option) const { return mOptions.contains(option); }
    [[nodiscard]] QString value(const QString &option) const { return mOptions.value(option); }
    [[nodiscard]] const QStringList &rest() const { return mRest; }

  private:
    QHash<QString, QString> mOptions;
    QStringList mRest;
};

// A field of one record as the user writes it: UIID, UIID(N) or UIID(P.N).
struct Address {
    QString uiid;
    qint32 record = 0; // from 1; 0 where none was given
    qint32 parent = 0; // from 1; 0 where none was given

    // Raises UsageError for text of another form.
    [[nodiscard]] static Address parse(const QString &text);
};

// ADDRESS=VALUE or ADDRESS=#VALUE. The value begins behind the first "=".
struct Assignment {
    Address address;
    QString value;
    bool stored = false;

    [[nodiscard]] static Assignment parse(const QString &text);
};
