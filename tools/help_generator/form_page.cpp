#include "form_page.h"

#include "help_book.h"

#include <utility>

namespace {
QString pageAnchor(std::size_t place) { return QStringLiteral("page-%1").arg(place); }
} // namespace

FormPage::FormPage(const Dictionary &dictionary, const FormDefinition &form, QString title)
    : mName(form.name), mTitle(std::move(title)), mFacts(dictionary), mSections(formSections(form, dictionary)) {}

QString FormPage::fileName() const { return mName + QStringLiteral(".html"); }

void FormPage::write(HelpBook &book, const QString &introduction, const QString &where) const {
    QString body = QStringLiteral("<h1>%1</h1>\n").arg(mTitle.toHtmlEscaped());
    if (!where.isEmpty())
        body += QStringLiteral("<p class=\"where\">%1</p>\n").arg(where.toHtmlEscaped());
    body += introduction + pageLinks();
    for (std::size_t place = 0; place < mSections.size(); ++place)
        body += section(place);
    book.addPage(fileName(), mTitle.toHtmlEscaped(), body);
}

QString FormPage::pageLinks() const {
    QStringList links;
    QString last;
    for (std::size_t place = 0; place < mSections.size(); ++place) {
        const QString &page = mSections[place].page;
        if (page != last && !page.isEmpty())
            links << Markup::link(u'#' + pageAnchor(place), page.toHtmlEscaped());
        last = page;
    }
    return links.size() < 2 ? QString()
                            : QStringLiteral("<p>Pages of this form: %1</p>\n").arg(links.join(QStringLiteral(" | ")));
}

QString FormPage::section(std::size_t place) const {
    const FormSection &section = mSections[place];
    QString html;
    const bool beginsPage = place == 0 || mSections[place - 1].page != section.page;
    if (beginsPage && !section.page.isEmpty())
        html += QStringLiteral("<h2><a name=\"%1\"></a>%2</h2>\n").arg(pageAnchor(place), section.page.toHtmlEscaped());
    if (!section.heading.isEmpty() && section.heading != section.page)
        html += QStringLiteral("<h3>%1</h3>\n").arg(section.heading.toHtmlEscaped());
    return html + repeated(section) + table(section);
}

QString FormPage::repeated(const FormSection &section) {
    QStringList links;
    for (const FieldDefinition *field : section.repeated)
        links << Markup::link(u'#' + field->id, field->label.toHtmlEscaped());
    return links.isEmpty() ? QString()
                           : QStringLiteral("<p>Columns that also stand on this form as fields: %1.</p>\n")
                                 .arg(links.join(QStringLiteral(", ")));
}

QString FormPage::table(const FormSection &section) const {
    if (section.fields.empty())
        return {};
    QString rows = QStringLiteral("<table width=\"98%\" cellpadding=\"4\" cellspacing=\"0\">\n<tr><th>Setting</th>"
                                  "<th>What it does</th><th>Values</th><th>Unit</th><th>Default</th></tr>\n");
    for (const FieldDefinition *field : section.fields)
        rows += row(*field);
    return rows + QStringLiteral("</table>\n");
}

QString FormPage::row(const FieldDefinition &field) const {
    const QString needs = mFacts.needs(field);
    return QStringLiteral("<tr><td width=\"18%\"><a name=\"%1\"></a><b>%2</b></td><td width=\"42%\">%3%4</td>"
                          "<td width=\"20%\">%5</td><td width=\"8%\">%6</td><td width=\"12%\">%7</td></tr>\n")
        .arg(field.id, field.label.toHtmlEscaped(), field.help.toHtmlEscaped(),
             needs.isEmpty() ? QString()
                             : QStringLiteral("<br><span class=\"needs\">%1</span>").arg(needs.toHtmlEscaped()),
             mFacts.values(field).toHtmlEscaped(), field.unit.toHtmlEscaped(),
             mFacts.defaultValue(field).toHtmlEscaped());
}

void FormPage::addTopics(HelpBook &book) const {
    for (const FormSection &section : mSections) {
        for (const FieldDefinition *field : section.fields)
            book.addTopic({.title = field->label,
                           .where = mTitle,
                           .place = fileName() + u'#' + field->id,
                           .text = section.heading + u' ' + field->help + u' ' + mFacts.values(*field)});
    }
}
