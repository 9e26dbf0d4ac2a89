#include "find_field_search.h"
#include "frm_about.h"
#include "frm_find_field.h"
#include "frm_main.h"
#include "help_about_windows.h"
#include "ifield.h"
#include "process_values.h"
#include "product_identity.h"
#include "program_bench.h"
#include "transformer.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

// Find Field, About and Credits in the whole program.
class FindFieldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mBench = std::make_unique<ProgramBench>(QStringLiteral("Advanced")); }
    void cleanupTestCase() { mBench.reset(); }
    void lines_data();
    void lines();
    void searchKnowsNoCaseAndLeavesNothingBehind();
    void emptySearchFindsTheFieldsOfEveryForm();
    void eachUsableFieldIsFoundByItsLabelAndLandedOn();
    void aFieldThatTheModelLacksIsTold();
    void aRefusedValueHoldsTheForm();
    void aboutTellsVersionsAndAccess();
    void creditsEndWithAClick();

  private:
    frmFindField &find(const QString &text);
    static QListWidget &output(const frmFindField &window);
    // Clicks the line with that text; false if there is none.
    static bool choose(const frmFindField &window, const QString &line);
    [[nodiscard]] bool isAvailable(const QString &caption) const;

    std::unique_ptr<ProgramBench> mBench;
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

bool FindFieldTest::choose(const frmFindField &window, const QString &line) {
    QListWidget &list = output(window);
    for (QListWidgetItem *item : list.findItems(line, Qt::MatchExactly)) {
        list.scrollToItem(item);
        WindowInput::clickAt(*list.viewport(), list.visualItemRect(item).center());
        return true;
    }
    return false;
}

void FindFieldTest::lines_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("parts"); // form|label|name; "": no hit
    QTest::newRow("nothing found") << QStringLiteral("Not Found") << QString();
    QTest::newRow("cut at the first dash")
        << QStringLiteral("PTT - Mic - on hook\tX_q7r") << QStringLiteral("PTT|Mic - on hook|X_q7r");
    QTest::newRow("empty label") << QStringLiteral("PTT - \tX") << QStringLiteral("PTT||X");
}

void FindFieldTest::lines() {
    QFETCH(const QString, line);
    QFETCH(const QString, parts);
    const auto hit = FindFieldHit::FromLine(line);
    QCOMPARE(hit ? hit->form + u'|' + hit->label + u'|' + hit->name : QString(), parts);
    if (hit)
        QCOMPARE(hit->Line(), line);
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

void FindFieldTest::emptySearchFindsTheFieldsOfEveryForm() {
    const frmFindField &window = find(QString());
    ProgramBench::picture(const_cast<frmFindField &>(window), QStringLiteral("find-field"));
    for (const ProgramBench::Form &form : mBench->forms())
        QVERIFY2(!output(window).findItems(form.caption + QStringLiteral(" - "), Qt::MatchStartsWith).isEmpty(),
                 qPrintable(form.caption));
}

bool FindFieldTest::isAvailable(const QString &caption) const {
    const auto *tree = mBench->window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    const QList<QTreeWidgetItem *> nodes = tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    return !nodes.isEmpty() &&
           nodes.constFirst()->data(0, Qt::AccessibleDescriptionRole).toString() != QStringLiteral("unavailable");
}

void FindFieldTest::eachUsableFieldIsFoundByItsLabelAndLandedOn() {
    int landed = 0;
    for (const ProgramBench::Form &form : mBench->forms()) {
        if (!isAvailable(form.caption))
            continue;
        mBench->open(form);
        QList<std::pair<QString, QString>> fields; // line, UIID
        for (const Ifield *field : mBench->usableFields()) {
            const QString name = dynamic_cast<const QWidget *>(field)->objectName();
            fields << std::pair(FindFieldHit{form.caption, field->Ifield_GetName(), name}.Line(),
                                field->Ifield_GetUIID());
        }
        for (const auto &[line, uiid] : fields) {
            const QString label = FindFieldHit::FromLine(line)->label;
            QVERIFY2(choose(find(label), line), qPrintable(line));
            WindowInput::activate(mBench->window());
            const QWidget *widget = QApplication::focusWidget();
            const Ifield *focused = nullptr;
            for (; widget != nullptr && focused == nullptr; widget = widget->parentWidget())
                focused = dynamic_cast<const Ifield *>(widget);
            QVERIFY2(focused != nullptr && focused->Ifield_GetUIID() == uiid, qPrintable(line));
            QCOMPARE(mBench->window().LoadedFormTitle(), form.caption + QStringLiteral(" (%1)").arg(label));
            ++landed;
        }
    }
    QVERIFY2(landed > 40, qPrintable(QString::number(landed)));
    ProgramBench::picture(mBench->window(), QStringLiteral("find-landed"));
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
