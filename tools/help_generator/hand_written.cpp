#include "hand_written.h"

#include "help_book.h"
#include "run_time_error.h"

#include <QFile>
#include <QRegularExpression>

#include <utility>

namespace {
[[noreturn]] void fail(const QString &text) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("HandWritten"), text);
}
} // namespace

HandWritten::HandWritten(QString folder, const Dictionary &dictionary, QHash<QString, QString> titles)
    : mFolder(std::move(folder)), mDictionary(dictionary), mTitles(std::move(titles)) {}

QStringList HandWritten::pages() const { return read(QStringLiteral("contents.txt")).split(u'\n', Qt::SkipEmptyParts); }

QString HandWritten::page(const QString &name) const { return read(QStringLiteral("pages/%1.html").arg(name)); }

QString HandWritten::introduction(const QString &form) const { return read(QStringLiteral("forms/%1.html").arg(form)); }

QString HandWritten::read(const QString &file) const {
    QFile source(path(file));
    if (!source.open(QIODevice::ReadOnly))
        fail(QStringLiteral("%1: %2").arg(file, source.errorString()));
    QString text = QString::fromUtf8(source.readAll());
    static const QRegularExpression kName(QStringLiteral("\\[\\[([^\\]]+)\\]\\]"));
    for (auto match = kName.match(text); match.hasMatch(); match = kName.match(text))
        text.replace(match.captured(0), linkTo(match.captured(1), file));
    return text;
}

QString HandWritten::linkTo(const QString &name, const QString &file) const {
    if (mTitles.contains(name))
        return Markup::link(name + QStringLiteral(".html"), mTitles.value(name).toHtmlEscaped());
    const FieldDefinition *field = mDictionary.find(name);
    if (field == nullptr || field->form.isEmpty())
        fail(QStringLiteral("%1: there is no field and no form %2").arg(file, name));
    return Markup::link(field->form + QStringLiteral(".html#") + name, field->label.toHtmlEscaped());
}
