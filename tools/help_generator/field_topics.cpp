#include "field_topics.h"

#include "help_book.h"

#include <array>
#include <utility>

FieldTopics::FieldTopics(const Dictionary &dictionary, const QHash<QString, QString> &titles)
    : mDictionary(dictionary), mTitles(titles), mFacts(dictionary) {}

void FieldTopics::write(HelpBook &book) const {
    for (const FieldDefinition &field : mDictionary.fields()) {
        const QString form = formOf(field);
        QString place = form + QStringLiteral(".html");
        if (!field.form.isEmpty())
            place += u'#' + field.id;
        const QString body =
            details(field) +
            QStringLiteral("<p>%1</p>\n").arg(Markup::link(place, mTitles.value(form).toHtmlEscaped()));
        book.addForward(QStringLiteral("%1.html").arg(field.helpNumber), field.label.toHtmlEscaped(), place, body);
    }
}

QString FieldTopics::formOf(const FieldDefinition &field) const {
    if (!field.form.isEmpty())
        return field.form;
    for (const FieldIndex other : mDictionary.structure(field.structure).fields) {
        if (!mDictionary.field(other).form.isEmpty())
            return mDictionary.field(other).form;
    }
    return {};
}

QString FieldTopics::details(const FieldDefinition &field) const {
    const std::array<std::pair<QString, QString>, 4> rows{{{QStringLiteral("Values"), mFacts.values(field)},
                                                           {QStringLiteral("Unit"), field.unit},
                                                           {QStringLiteral("Default"), mFacts.defaultValue(field)},
                                                           {QStringLiteral("Needs"), mFacts.needs(field)}}};
    QString html =
        QStringLiteral("<h3>%1</h3>\n<p>%2</p>\n").arg(field.label.toHtmlEscaped(), field.help.toHtmlEscaped());
    for (const auto &[name, text] : rows) {
        if (!text.isEmpty())
            html += QStringLiteral("<p><b>%1:</b> %2</p>\n").arg(name, text.toHtmlEscaped());
    }
    return html;
}
