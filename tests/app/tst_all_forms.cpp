#include "data_form.h"
#include "form_geometry.h"
#include "frm_main.h"
#include "ifield.h"
#include "igrid.h"
#include "program_bench.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"
#include "window_input.h"
#include "xarray_db.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {
constexpr QSize kSmall(1024, 768);
constexpr QSize kLarge(1600, 1000);

// English and those that the dictionary has columns for.
qint32 languages() {
    QFile file(TranslationDictionary::StandardFile());
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    return file.readLine().trimmed().remove(0, 1).chopped(1).toInt();
}

// Forms that a tier shows, by their captions in the tree, in its order.
QStringList formsOf(const ProgramBench &bench) {
    QStringList captions;
    for (QTreeWidgetItemIterator at(bench.window().findChild<QTreeWidget *>(QStringLiteral("FormTree")));
         *at != nullptr; ++at) {
        if ((*at)->childCount() == 0)
            captions << (*at)->text(0);
    }
    return captions;
}
} // namespace

// Every form of the catalogue in the whole program, on each tier that has it.
class tst_all_forms final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void everyFormOpensFilled_data();
    void everyFormOpensFilled();
    void initTestCase() { mTranslation.Dictionary().Load(TranslationDictionary::StandardFile()); }
    void cleanup();
    void cleanupTestCase();
    void everyCallUpOpensItsSequence_data();
    void everyCallUpOpensItsSequence();

  private:
    [[nodiscard]] int lookAtSubForm(const ProgramBench &bench);
    void lookAtForm(const ProgramBench &bench, const QString &caption);
    void lookAtField(const ProgramBench &bench, const HostControl &control, const QString &where);
    void lookAtGrid(const ProgramBench &bench, Igrid &grid, const QString &where);
    void picture(QWidget &window, const QString &name);
    void fault(const QString &what) { mGeometry.addFault(mPlace + what); }

    FormGeometry mGeometry;
    Translation mTranslation;
    QString mPlace; // tier, language and size
};

void tst_all_forms::everyFormOpensFilled_data() {
    QTest::addColumn<QString>("tier");
    QTest::addColumn<qint32>("language");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("forms");
    const bool full = !qEnvironmentVariableIsEmpty("KX_FULL");
    const QStringList tiers{QStringLiteral("Basic"), QStringLiteral("Standard"), QStringLiteral("Advanced")};
    constexpr int kForms[] = {12, 22, 25};
    for (qint32 language = 1; language <= languages(); ++language) {
        for (const QSize &size : {kSmall, kLarge}) {
            for (qsizetype tier = 0; tier < tiers.size(); ++tier) {
                // The largest tier has the forms of the others.
                const bool quick = size == kSmall && (language == 1 || tier == 2);
                if (full || quick)
                    QTest::addRow("%s, language %d, %d", qPrintable(tiers[tier]), language, size.width())
                        << tiers[tier] << language << size << kForms[tier];
            }
        }
    }
}

void tst_all_forms::everyFormOpensFilled() {
    QFETCH(QString, tier);
    QFETCH(qint32, language);
    QFETCH(QSize, size);
    mPlace = QStringLiteral("%1-%2-%3-").arg(tier).arg(language).arg(size.width());
    mTranslation.gLanguage = language;
    ProgramBench bench(language);
    bench.window().resize(size);
    bench.chooseTier(tier);
    bench.addRecords();
    const QStringList captions = formsOf(bench);
    for (const QString &caption : captions) {
        QVERIFY2(bench.openForm(caption), qPrintable(caption));
        lookAtForm(bench, caption);
    }
    QVERIFY2(mGeometry.faults().isEmpty(), qPrintable(mGeometry.faults().join(u'\n')));
    QTEST(int(captions.size()), "forms");
}

void tst_all_forms::everyCallUpOpensItsSequence_data() {
    QTest::addColumn<QString>("tier");
    QTest::newRow("standard") << QStringLiteral("Standard");
    QTest::newRow("advanced") << QStringLiteral("Advanced");
}

// Seven sequences to a system: with the second system on show they are 8 to 14.
void tst_all_forms::everyCallUpOpensItsSequence() {
    QFETCH(QString, tier);
    mPlace = tier + QStringLiteral("-sub-");
    mTranslation.gLanguage = 1;
    ProgramBench bench;
    bench.chooseTier(tier);
    bench.addRecords();
    bench.addRecords();
    QVERIFY(bench.openForm(QStringLiteral("Free Format Bursts")));
    WindowInput::click(bench.part<QPushButton>(QStringLiteral("fldPageNavigator1"), "cmdLast"));
    for (int callUp = 1; callUp <= 7; ++callUp) {
        const QString name = QStringLiteral("fldFreeFormatDetail%1").arg(callUp);
        int shown = 0;
        QTimer waits;
        connect(&waits, &QTimer::timeout, this, [&] { shown = qMax(shown, lookAtSubForm(bench)); });
        waits.start(20);
        WindowInput::click(*bench.form()->findChild<QWidget *>(name)->findChild<QPushButton *>());
        QCOMPARE(shown, 7 + callUp);
    }
    QVERIFY2(mGeometry.faults().isEmpty(), qPrintable(mGeometry.faults().join(u'\n')));
}

// The record that it shows; closes it. 0 while it is not open.
int tst_all_forms::lookAtSubForm(const ProgramBench &bench) {
    QWidget *const window = QApplication::activeModalWidget();
    auto *const form = window == nullptr ? nullptr : window->findChild<DataForm *>();
    if (form == nullptr)
        return 0;
    int record = 0;
    for (const HostControl *control : form->Iusrfrm_Controls()) {
        lookAtField(bench, *control, QStringLiteral("Sub-form: ") + control->Name());
        if (control->TypeName() == u"fldPageNavigator")
            record = control->object()->Ifield_GetRecordNr();
    }
    mGeometry.look(*form, mPlace + QStringLiteral("Sub-form"));
    picture(*window, QStringLiteral("Sub-form"));
    window->findChild<QPushButton *>(QStringLiteral("cmdCancel"))->click();
    return record;
}

void tst_all_forms::lookAtForm(const ProgramBench &bench, const QString &caption) {
    for (const HostControl *control : bench.form()->Iusrfrm_Controls())
        lookAtField(bench, *control, caption + QStringLiteral(": ") + control->Name());
    auto *tabs = bench.form()->findChild<QTabWidget *>(QStringLiteral("SSTab1"));
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
        const QString where = tabs == nullptr ? caption : caption + u'-' + QString::number(page + 1);
        if (tabs != nullptr && !tabs->isTabVisible(page))
            continue;
        if (tabs != nullptr)
            tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        mGeometry.look(*bench.form(), mPlace + where);
        for (const char *bar : {"HScroll1", "VScroll1"}) {
            if (bench.window().findChild<QScrollBar *>(QLatin1String(bar))->isVisible())
                fault(where + QStringLiteral(": scrolls"));
        }
        picture(bench.window(), where);
    }
}

void tst_all_forms::lookAtField(const ProgramBench &bench, const HostControl &control, const QString &where) {
    if (auto *grid = dynamic_cast<Igrid *>(control.object()))
        lookAtGrid(bench, *grid, where);
    if (!ProgramBench::isValue(control.TypeName()))
        return;
    Ifield &field = *control.object();
    if (field.Ifield_GetUIIDNotFound())
        fault(where + QStringLiteral(" is not found"));
    if (!field.Ifield_GetVisible())
        return;
    const QString uiid = field.Ifield_GetUIID();
    const QString label = mTranslation.NLSStr(bench.component().GetLabel(uiid));
    // A box without room for a caption has blanks for one.
    if (!field.Ifield_GetName().trimmed().isEmpty() && !label.isEmpty() && field.Ifield_GetName() != label)
        fault(where + QStringLiteral(" is labelled ") + field.Ifield_GetName());
    const QString stored = bench.value(uiid, field.Ifield_GetRecordNr());
    if (ValueText::isUndefined(stored))
        return;
    if (ValueText::of(field.Ifield_GetValue()) != stored)
        fault(where + QStringLiteral(" shows ") + ValueText::of(field.Ifield_GetValue()) + QStringLiteral(", not ") +
              stored);
    if (field.Ifield_GetEnabled() != bench.component().GetFieldEnabled(uiid, field.Ifield_GetRecordNr()))
        fault(where + QStringLiteral(" is wrongly enabled or disabled"));
}

void tst_all_forms::lookAtGrid(const ProgramBench &bench, Igrid &grid, const QString &where) {
    const QStringList uiids = grid.Igrid_GetUIIDList().split(u'|');
    const XArrayDB &rows = grid.Igrid_GetArray();
    const qint32 records = bench.component().GetNumberOfRecords(uiids.first());
    if (rows.UpperBound(1) + 1 != records)
        fault(where + QStringLiteral(" has %1 rows for %2 records").arg(rows.UpperBound(1) + 1).arg(records));
}

void tst_all_forms::picture(QWidget &window, const QString &name) {
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../form-pictures"));
    folder.mkpath(QStringLiteral("."));
    window.grab().save(
        folder.filePath(mPlace + QString(name).replace(u' ', u'_').replace(u'/', u'_') + QStringLiteral(".png")));
}

void tst_all_forms::cleanup() { mGeometry.forgetFaults(); }

void tst_all_forms::cleanupTestCase() {
    for (const QString &line : mGeometry.tightest(10))
        qInfo("%s", qPrintable(line));
}

QTEST_MAIN(tst_all_forms)
#include "tst_all_forms.moc"
