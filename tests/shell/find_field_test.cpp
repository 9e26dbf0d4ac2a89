#include "data_form.h"
#include "dictionary_loader.h"
#include "find_field_search.h"
#include "form_catalogue.h"
#include "frm_about.h"
#include "frm_find_field.h"
#include "frm_main.h"
#include "help_about_windows.h"
#include "ifield.h"
#include "igrid.h"
#include "process_values.h"
#include "product_identity.h"
#include "program_bench.h"
#include "transformer.h"
#include "translation.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>

// Find Field, About and Credits in the whole program.
class FindFieldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mBench = std::make_unique<ProgramBench>(QStringLiteral("Advanced")); }
    void cleanupTestCase() { mBench.reset(); }
    void linesAreCutAtTheFirstDash();
    void searchKnowsNoCaseAndLeavesNothingBehind();
    void everyFieldIsFoundByItsLabelAndLandedOn();
    void aFieldThatTheModelLacksIsTold();
    void aRefusedValueHoldsTheForm();
    void openWindowsFollowTheLanguage_data();
    void openWindowsFollowTheLanguage();
    void aboutTellsVersionsAndAccess();
    void creditsEndWithAClick();

  private:
    frmFindField &find(const QString &text);
    static QListWidget &output(const frmFindField &window);
    // Clicks the line with that text, of equal ones the nth from 0; false if there is none.
    static bool choose(const frmFindField &window, const QString &line, qsizetype nth = 0);
    // A field as a line names it, and the control that shows it.
    struct Target {
        QString name;
        QString uiid;
        QString control;
        bool inSubForm = false;
    };
    QList<Target> targets(const QString &form);
    // "": the focus is on it, or it is on show and disabled.
    static QString wrongLanding(DataForm &form, const Target &target);

    std::unique_ptr<ProgramBench> mBench;
    FormCatalogue mForms;
};

frmFindField &FindFieldTest::find(const QString &text) {
    WindowInput::activate(mBench->window());
    WindowInput::key(Qt::Key_F, Qt::ControlModifier);
    auto *window = mBench->window().findChild<frmFindField *>();
    WindowInput::activate(*window);
    window->findChild<QLineEdit *>(QStringLiteral("txtSearch"))->setText(text);
    WindowInput::key(Qt::Key_Return);
    return *window;
}

QListWidget &FindFieldTest::output(const frmFindField &window) {
    return *window.findChild<QListWidget *>(QStringLiteral("lstOutput"));
}

bool FindFieldTest::choose(const frmFindField &window, const QString &line, qsizetype nth) {
    QListWidget &list = output(window);
    QListWidgetItem *const item = list.findItems(line, Qt::MatchExactly).value(nth);
    if (item == nullptr)
        return false;
    list.scrollToItem(item);
    WindowInput::clickAt(*list.viewport(), list.visualItemRect(item).center());
    return true;
}

void FindFieldTest::linesAreCutAtTheFirstDash() {
    const QString line = QStringLiteral("PTT - Mic - on hook\tX_q7r");
    const auto hit = FindFieldHit::FromLine(line);
    QVERIFY(hit && hit->Line() == line);
    QCOMPARE(hit->form + u'|' + hit->label + u'|' + hit->name, QStringLiteral("PTT|Mic - on hook|X_q7r"));
}

void FindFieldTest::searchKnowsNoCaseAndLeavesNothingBehind() {
    QVERIFY(!mBench->window().findChild<QAction *>(QStringLiteral("mnuFindField"))->isVisible());
    const QString form = mBench->window().LoadedUsrControl().typeName;
    const auto position = mBench->component().GetValue(QStringLiteral("ChannelPosition"), 0);
    const frmFindField &window = find(QStringLiteral("ECONOMY tim"));
    QCOMPARE(output(window).count(), 1);
    QCOMPARE(output(window).item(0)->text(), QStringLiteral("Economy - Economy Timer\tEconomyTimer"));
    find(QStringLiteral("no such thing"));
    QCOMPARE(output(window).item(0)->text(), QStringLiteral("Not Found"));
    choose(window, QStringLiteral("Not Found"));
    QCOMPARE(mBench->window().LoadedUsrControl().typeName, form);
    QVERIFY(mBench->window().findChild<QWidget *>(QStringLiteral("usrfrmFind")) == nullptr);
    QCOMPARE(mBench->window().Services().process.CurrentEnablerKey, QStringLiteral("Main"));
    QCOMPARE(mBench->window().Services().process.colEnablers.Count(), 1);
    QCOMPARE(mBench->component().GetValue(QStringLiteral("ChannelPosition"), 0), position);
}

// The values and the columns of grids of a form, then those of the sub-form that it calls up.
QList<FindFieldTest::Target> FindFieldTest::targets(const QString &form) {
    QList<Target> found;
    QString subForm;
    for (const PlacedControl &place : mForms.form(form).placedControls()) {
        const ControlDefinition &control = *place.control;
        if (ProgramBench::isValue(control.typeName))
            found.push_back({control.name, control.id(), control.name});
        if (control.typeName == u"fldGridField")
            for (const QString &uiid :
                 dynamic_cast<const Igrid &>(*mBench->field(control.name)).Igrid_GetUIIDList().split(u'|'))
                found.push_back({uiid, uiid, control.name});
        if (control.typeName == u"fldSubFormCallUp")
            subForm = control.property(QStringLiteral("SubFormControlName")).toString();
    }
    for (Target inside : subForm.isEmpty() ? QList<Target>() : targets(subForm)) {
        inside.inSubForm = true;
        found.push_back(inside);
    }
    return found;
}

QString FindFieldTest::wrongLanding(DataForm &form, const Target &target) {
    for (HostControl *control : form.Iusrfrm_Controls()) {
        if (control->Name() != target.control)
            continue;
        if (!dynamic_cast<const QWidget *>(control->object())->isVisible())
            return QStringLiteral(" is not on show");
        const Ifield *focused = nullptr;
        for (const QWidget *at = QApplication::focusWidget(); at != nullptr && focused == nullptr;
             at = at->parentWidget())
            focused = dynamic_cast<const Ifield *>(at);
        auto *grid = dynamic_cast<Igrid *>(control->object());
        const bool hasNoCells = grid != nullptr && grid->Igrid_GetArray().UpperBound(1) < 0;
        const bool reached = focused == control->object() && (hasNoCells || focused->Ifield_GetUIID() == target.uiid);
        return reached || !control->Enabled() ? QString() : QStringLiteral(" has not the focus");
    }
    return QStringLiteral(" is not on the form");
}

void FindFieldTest::everyFieldIsFoundByItsLabelAndLandedOn() {
    mBench->addRecords();
    const bool full = !qEnvironmentVariableIsEmpty("KX_FULL");
    QHash<QString, int> lines; // how often each was chosen
    QSet<QString> reached;
    for (const ProgramBench::Form &form : mBench->forms()) {
        mBench->open(form);
        for (const Target &target : targets(form.typeName)) {
            const QString label = mBench->component().GetLabel(target.uiid);
            const QString line = FindFieldHit{form.caption, label, target.name}.Line();
            QString wrong = QStringLiteral(" opens no sub-form");
            QTimer waits;
            connect(&waits, &QTimer::timeout, this, [&] {
                QWidget *const window = QApplication::activeModalWidget();
                if (window == nullptr || window != QApplication::activeWindow())
                    return;
                wrong = wrongLanding(*window->findChild<DataForm *>(), target);
                window->close();
            });
            waits.start(5);
            // A search for each label takes minutes.
            const qsizetype place = reached.size() % 25;
            if (full || place < 2)
                find(full || place == 0 ? label : QString());
            QVERIFY2(choose(*mBench->window().findChild<frmFindField *>(), line, lines[line]++), qPrintable(line));
            WindowInput::activate(mBench->window());
            if (!target.inSubForm)
                wrong = wrongLanding(*mBench->form(), target);
            QVERIFY2(wrong.isEmpty(), qPrintable(line + wrong));
            QVERIFY2(!mBench->component().GetFormIsDirty(), qPrintable(line));
            QCOMPARE(mBench->window().LoadedFormTitle(), form.caption + QStringLiteral(" (%1)").arg(label));
            reached << target.uiid;
        }
    }
    const auto dictionary = DictionaryLoader::loadCompiledIn();
    for (const FieldDefinition &field : dictionary->fields())
        QVERIFY2(field.form.isEmpty() || field.hidden || reached.contains(field.id), qPrintable(field.id));
    ProgramBench::picture(mBench->window(), QStringLiteral("find-landed"));
    mBench.reset(); // the records added here are not for the others
    mBench = std::make_unique<ProgramBench>(QStringLiteral("Advanced"));
}

void FindFieldTest::aFieldThatTheModelLacksIsTold() {
    mBench->component().ChangeTier(QStringLiteral("Basic"));
    const QList<QListWidgetItem *> hits =
        output(find(QStringLiteral("DTMFDialling"))).findItems(QStringLiteral("Start-up - "), Qt::MatchStartsWith);
    QCOMPARE(hits.size(), 1);
    mBench->boxes.expect(QStringLiteral("%0:S does not exist in this radio model or database version."), 0);
    QVERIFY(choose(*mBench->window().findChild<frmFindField *>(), hits.constFirst()->text()));
    mBench->component().ChangeTier(QStringLiteral("Advanced"));
}

void FindFieldTest::aRefusedValueHoldsTheForm() {
    const QString line = QStringLiteral("Start-up - Power-On Mode\tPowerOnMode");
    mBench->open({QStringLiteral("usrctlEconomyKX4600"), QStringLiteral("Economy")});
    const frmFindField &window = find(QStringLiteral("power-on mode"));
    WindowInput::activate(mBench->window());
    mBench->usableFields().front()->Ifield_SetFocus();
    WindowInput::key(Qt::Key_End); // the first key after a change of window may still go to the other one
    mBench->usableFields().front()->Ifield_SelectAll();
    WindowInput::type(QStringLiteral("999"));
    QCOMPARE(mBench->usableFields().front()->Ifield_GetValue().toString(), QStringLiteral("999"));
    WindowInput::activate(const_cast<frmFindField &>(window));
    mBench->boxes.expect(QStringLiteral("%0:S must lie between %1:S and %2:S."), 0);
    QVERIFY(choose(window, line));
    QCOMPARE(mBench->window().LoadedUsrControl().typeName, QStringLiteral("usrctlEconomyKX4600"));
    WindowInput::activate(mBench->window());
    WindowInput::key(Qt::Key_Escape);
    mBench->open({QStringLiteral("usrctlStartupKX4600"), QStringLiteral("Start-up")});
}

void FindFieldTest::openWindowsFollowTheLanguage_data() {
    QTest::addColumn<qint32>("language");
    QTest::addColumn<QString>("undo"); // the toolkit's word, in a text box's menu
    QTest::newRow("Spanish") << 4 << QStringLiteral("&Deshacer");
    QTest::newRow("Chinese") << 3 << QStringLiteral("撤消(&U)");
    QTest::newRow("French") << 2 << QStringLiteral("&Annuler");
    QTest::newRow("English again") << 1 << QStringLiteral("&Undo");
}

void FindFieldTest::openWindowsFollowTheLanguage() {
    QFETCH(const qint32, language);
    QFETCH(const QString, undo);
    const frmFindField &window = find(QStringLiteral("timer"));
    mBench->window().findChild<QAction *>(QStringLiteral("mnuContents"))->trigger();
    QTimer::singleShot(0, &mBench->window(), [&] {
        mBench->component().SaveSetting(QStringLiteral("Language"), language);
        QApplication::activeModalWidget()->close();
    });
    mBench->window().findChild<QAction *>(QStringLiteral("mnuOptions"))->trigger();
    QCoreApplication::processEvents();
    const Translation &translation = mBench->window().Services().translation;
    QCOMPARE(translation.gLanguage, language);
    QCOMPARE(window.windowTitle(), translation.NLSStr(QStringLiteral("Find Field")));
    QVERIFY(output(window).count() == 0);
    const std::unique_ptr<QMenu> menu(window.findChild<QLineEdit *>()->createStandardContextMenu());
    QCOMPARE(menu->actions().constFirst()->text().section(u'\t', 0, 0), undo);
    for (QWidget *shown : QApplication::topLevelWidgets()) {
        if (shown->objectName() == u"frmHelp")
            QCOMPARE(shown->windowTitle(), translation.NLSStr(QStringLiteral("Help")));
    }
}

void FindFieldTest::aboutTellsVersionsAndAccess() {
    QString seen;
    mBench->window().findChild<QAction *>(QStringLiteral("mnuAccessLevelOption(2)"))->trigger();
    QTimer::singleShot(0, &mBench->window(), [&seen] {
        QWidget *about = QApplication::activeModalWidget();
        ProgramBench::picture(*about, QStringLiteral("about"));
        for (const char *name : {"lblCaption", "lblVersion", "lblAccessLevel"})
            seen += about->findChild<QLabel *>(QString::fromLatin1(name))->text() + u'\n';
        const auto *files = about->findChild<QListWidget *>(QStringLiteral("List1"));
        for (int row = 0; row < files->count(); ++row)
            seen += files->item(row)->text() + u'\n';
        about->close();
    });
    mBench->window().findChild<QAction *>(QStringLiteral("mnuAbout"))->trigger();
    for (const QString &part :
         {ProductIdentity::title(), QStringLiteral("Version ") + ProductIdentity::shortVersion(),
          QStringLiteral("Access Medium"), QStringLiteral("libTransformer.so - ") + ProductIdentity::fullVersion(),
          QStringLiteral("Qt - ") + QString::fromLatin1(qVersion()), QStringLiteral("Database - 3.20")})
        QVERIFY2(seen.contains(part), qPrintable(part + QStringLiteral(" in ") + seen));
}

void FindFieldTest::creditsEndWithAClick() {
    bool clicked = false;
    QTimer::singleShot(0, &mBench->window(), [&clicked] {
        QWidget *credits = QApplication::activeModalWidget();
        ProgramBench::picture(*credits, QStringLiteral("credits"));
        QTest::mouseClick(credits->findChild<QLabel *>(QStringLiteral("Label2")), Qt::LeftButton);
        clicked = true;
    });
    mBench->window().TransformerEvents_ShowCredits();
    QVERIFY(clicked && QApplication::activeModalWidget() == nullptr);
}

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    FindFieldTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "find_field_test.moc"
