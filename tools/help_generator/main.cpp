// kx4600help TEXTS FOLDER: makes the help pages from the compiled-in dictionary and form definitions and the
// hand-written texts.
#include "contents_writer.h"
#include "dictionary_loader.h"
#include "field_topics.h"
#include "form_catalogue.h"
#include "form_page.h"
#include "hand_written.h"
#include "help_book.h"
#include "run_time_error.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace {
// The one form that is opened from another form instead of from the tree.
const QString kSequenceForm = QStringLiteral("usrctlFreeFormatDetail");
const QString kSequenceTitle = QStringLiteral("Selcall: Free Format Sequence");

class Maker {
  public:
    Maker(const QString &texts, const QString &folder)
        : mDictionary(DictionaryLoader::loadCompiledIn()), mFacts(*mDictionary), mTree(treeForms(*mDictionary, mFacts)),
          mTitles(titles(mTree)), mTexts(texts, *mDictionary, mTitles), mBook(folder) {}

    void make() {
        mBook.copy(mTexts.path(QStringLiteral("style.css")), QStringLiteral("style.css"));
        const std::vector<ContentsEntry> pages = handWrittenPages();
        const std::vector<ContentsEntry> forms = formPages();
        mBook.addPage(QStringLiteral("index.html"), QStringLiteral("Contents"), contentsPage(pages, forms));
        formNumbers();
        FieldTopics(*mDictionary, mTitles).write(mBook);
        mBook.close();
    }

  private:
    static QHash<QString, QString> titles(const std::vector<TreeForm> &tree) {
        QHash<QString, QString> result{{kSequenceForm, kSequenceTitle}};
        for (const TreeForm &form : tree)
            result.insert(form.name, titleOf(form));
        return result;
    }

    std::vector<ContentsEntry> handWrittenPages() {
        static const QRegularExpression kTitle(QStringLiteral("<h1>(.*?)</h1>"));
        std::vector<ContentsEntry> entries;
        for (const QString &name : mTexts.pages()) {
            const QString body = mTexts.page(name);
            const QString title = Markup::plain(kTitle.match(body).captured(1));
            const QString fileName = name + QStringLiteral(".html");
            mBook.addPage(fileName, title.toHtmlEscaped(), body);
            mBook.addTopic({.title = title, .where = {}, .place = fileName, .text = Markup::plain(body), .depth = 0});
            entries.push_back({title, fileName});
        }
        return entries;
    }

    std::vector<ContentsEntry> formPages() {
        std::vector<ContentsEntry> entries;
        mBook.addTopic({.title = QStringLiteral("The forms"),
                        .where = {},
                        .place = QStringLiteral("index.html"),
                        .text = {},
                        .depth = 0});
        for (const TreeForm &form : mTree) {
            entries.push_back(formPage(form.name, whereOf(form)));
            if (form.name == QLatin1String("usrctlFreeFormatKX4600"))
                entries.push_back(formPage(kSequenceForm, QString()));
        }
        return entries;
    }

    ContentsEntry formPage(const QString &name, const QString &where) {
        const FormDefinition &definition = mCatalogue.form(name);
        const QString title = mTitles.value(name);
        const FormPage page(*mDictionary, definition, title);
        const QString introduction = mTexts.introduction(name);
        page.write(mBook, introduction, where);
        mBook.addTopic(
            {.title = title, .where = {}, .place = page.fileName(), .text = Markup::plain(introduction), .depth = 1});
        page.addTopics(mBook);
        if (definition.helpId() != 0)
            mForms[definition.helpId()].push_back({title, page.fileName()});
        return {title, page.fileName()};
    }

    // Forms may share a number: its page then offers each of them.
    void formNumbers() {
        for (auto entry = mForms.cbegin(); entry != mForms.cend(); ++entry) {
            QString body;
            for (const ContentsEntry &form : entry.value())
                body += QStringLiteral("<p>%1</p>\n").arg(Markup::link(form.fileName, form.title.toHtmlEscaped()));
            const QString fileName = QStringLiteral("%1.html").arg(entry.key());
            const QString title = entry.value().front().title.toHtmlEscaped();
            if (entry.value().size() == 1)
                mBook.addForward(fileName, title, entry.value().front().fileName, body);
            else
                mBook.addPage(fileName, title, QStringLiteral("<h1>Forms</h1>\n") + body);
        }
    }

    std::unique_ptr<const Dictionary> mDictionary;
    FormCatalogue mCatalogue;
    FieldFacts mFacts;
    std::vector<TreeForm> mTree;
    QHash<QString, QString> mTitles;
    HandWritten mTexts;
    HelpBook mBook;
    QMap<qint32, std::vector<ContentsEntry>> mForms;
};
} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: kx4600help TEXTS FOLDER\n");
        return 2;
    }
    try {
        Maker(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])).make();
        return 0;
    } catch (const RunTimeError &error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error.Description));
        return 1;
    }
}
