#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

// One line of text for each call that a test's doubles receive, in order: "GetValue(Name, 3)" of the component,
// "Name.SetValue(abc, false)" of a field. Booleans read "true" and "false".
class CallLog {
  public:
    void add(const QString &operation, const QVariantList &arguments = {});

    [[nodiscard]] const QStringList &lines() const { return mLines; }
    // The lines of one operation: those that start with it and "(".
    [[nodiscard]] QStringList linesOf(const QString &operation) const;
    // The lines since the last take.
    [[nodiscard]] QStringList take();

    [[nodiscard]] static QString textOf(const QVariant &argument);

  private:
    QStringList mLines;
};
