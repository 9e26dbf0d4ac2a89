#include "component_listener.h"
#include "component_places.h"
#include "ctl_form_enabler.h"
#include "form_catalogue.h"
#include "line_log.h"
#include "page_writer.h"
#include "test_services.h"
#include "text_page_sink.h"
#include "unseen_form.h"
#include "value_text.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
// The component as a tool uses it, with forms that nobody sees; what it raises reaches the form that is printed.
class Tool {
  public:
    explicit Tool(const QString &tier) {
        component.AddListener(&mListener);
        component.SetAccessLevel(80);
        component.ChangeTier(tier);
        mListener.onEvent = [this](const QString &line) { forward(line); };
    }
    ~Tool() { component.ShutDown(); }

    TransformerComponent component{ComponentPlaces::ofTool()};
    TestServices services{&component};
    FormCatalogue catalogue;

    QStringList report(const QString &form, bool printAll) {
        UnseenForm unseen(catalogue.form(form), services.fieldServices());
        services.process.colEnablers.Add(unseen.Iusrfrm_Enabler(), u"Print"_s);
        LineLog lines;
        const auto enabler = unseen.Iusrfrm_Enabler();
        enabler->Ienabler_InitialiseFields(-1);
        if (!enabler->Ienabler_PrintForm(unseen, form, lines, printAll))
            lines.lines << u"failed"_s;
        services.process.colEnablers.Remove(u"Print"_s);
        return lines.lines;
    }
    void addRecords(const QString &guide, int count) {
        for (int added = 0; added < count; ++added) {
            qint32 record = 0;
            bool accepted = false;
            component.AddRecord(guide, QString(), record, accepted);
            QVERIFY(accepted);
        }
    }

  private:
    void forward(const QString &line) {
        const auto enabler = services.process.colEnablers.Item(u"Print"_s);
        const QString uiid = line.section(u' ', 1, 1);
        if (enabler == nullptr)
            return;
        if (line.startsWith(u"UIIDNotFound "))
            enabler->Ienabler_UIIDNotFound(uiid);
        if (line.startsWith(u"RefreshGridByUIID "))
            enabler->Ienabler_RefreshGridByUIID(uiid);
    }
    ComponentListener mListener;
};

qsizetype countOf(const QStringList &lines, const QString &start) {
    return std::ranges::count_if(lines, [&start](const QString &line) { return line.startsWith(start); });
}
} // namespace

// The same report without a window: forms of the definitions on the real component.
class tst_UnseenForms : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyFormIsPrinted_data();
    void everyFormIsPrinted();
    void recordsArePrintedOneByOne();
    void recordThatIsLeftIsNotValidated();
    void unseenReportFitsItsPages();
};

void tst_UnseenForms::everyFormIsPrinted_data() {
    QTest::addColumn<QString>("tier");
    QTest::addColumn<QString>("form");
    const FormCatalogue catalogue;
    for (const QString &form : catalogue.names()) {
        for (const QString &tier : {u"Basic"_s, u"Advanced"_s})
            QTest::addRow("%s %s", qUtf8Printable(tier), qUtf8Printable(form)) << tier << form;
    }
}

void tst_UnseenForms::everyFormIsPrinted() {
    QFETCH(QString, tier);
    QFETCH(QString, form);
    Tool tool(tier);
    for (const bool printAll : {false, true}) {
        const QStringList lines = tool.report(form, printAll);
        QVERIFY(lines.size() >= 2);
        QVERIFY(!lines.contains(u"failed"_s));
        QCOMPARE(countOf(lines, u"  : "_s), 0); // a field without a label
    }
    QVERIFY(!tool.component.GetDataIsDirty());
}

void tst_UnseenForms::recordsArePrintedOneByOne() {
    Tool tool(u"Advanced"_s);
    const QString form = u"usrctlChannelsKX4600"_s;
    const QString guide = u"ChannelID_q7r"_s;
    tool.addRecords(guide, 3);
    const qint32 channels = tool.component.GetNumberOfRecords(guide);
    const QString title = u"* "_s + form + u' ';
    const QStringList current = tool.report(form, false);
    const QStringList all = tool.report(form, true);
    QCOMPARE(countOf(current, title), 0);
    QCOMPARE(countOf(current, u"| "_s), channels + 1); // the grid's heads and rows
    QCOMPARE(countOf(all, title), channels);
    QCOMPARE(countOf(all, u"| "_s), 0); // its records are printed instead
    for (qint32 record = 1; record <= channels; ++record)
        QVERIFY(all.contains(title + ValueText::of(tool.component.GetValue(guide, record))));
    // Each record has its own values: the fields behind its title differ from those of the next.
    const QString label = tool.component.GetLabel(u"RxFreq_q7r"_s);
    QCOMPARE(all.join(u'\n').count(label + u": "_s), channels);
}

void tst_UnseenForms::recordThatIsLeftIsNotValidated() {
    Tool tool(u"Advanced"_s);
    tool.addRecords(u"ChannelID_q7r"_s, 2);
    tool.report(u"usrctlChannelsKX4600"_s, true);
    QCOMPARE(ValueText::of(tool.component.GetValue(u"CurrentChannelNr"_s, 1)),
             QString::number(tool.component.GetNumberOfRecords(u"ChannelID_q7r"_s)));
    QVERIFY(tool.services.boxes.shown().isEmpty());
}

void tst_UnseenForms::unseenReportFitsItsPages() {
    Tool tool(u"Advanced"_s);
    tool.addRecords(u"ChannelID_q7r"_s, 40);
    std::vector<QStringList> pages;
    TextPageSink sink({}, pages);
    PageWriter writer(sink, u"Courier"_s);
    sink.BeginDocument();
    for (const QString &line : tool.report(u"usrctlChannelsKX4600"_s, false))
        writer.PrintLine(line.mid(2).replace(u'>', u'\t'), false, line.startsWith(u'|'), false);
    QVERIFY(pages.size() > 1);
    QVERIFY(!pages.back().isEmpty());
    for (const QStringList &page : pages) {
        for (const QString &line : page)
            QVERIFY2(line.size() <= 78, qUtf8Printable(line));
    }
}

QTEST_GUILESS_MAIN(tst_UnseenForms)
#include "tst_unseen_forms.moc"
