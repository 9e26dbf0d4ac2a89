#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "plain_caption.h"
#include "program_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QMap>
#include <QTabWidget>
#include <QTest>

namespace {
// What a user may act on, or finds his way by.
const QMap<QAccessible::Role, const char *> kNamed{{QAccessible::PushButton, "button"},
                                                   {QAccessible::CheckBox, "check box"},
                                                   {QAccessible::EditableText, "text"},
                                                   {QAccessible::ComboBox, "list"},
                                                   {QAccessible::Slider, "slider"},
                                                   {QAccessible::PageTab, "page tab"},
                                                   {QAccessible::PageTabList, "page tabs"},
                                                   {QAccessible::TreeItem, "node"},
                                                   {QAccessible::Tree, "tree"},
                                                   {QAccessible::Table, "grid"},
                                                   {QAccessible::ColumnHeader, "column head"},
                                                   {QAccessible::MenuItem, "menu"},
                                                   {QAccessible::MenuBar, "menu bar"},
                                                   {QAccessible::ToolBar, "tool bar"},
                                                   {QAccessible::StatusBar, "status bar"},
                                                   {QAccessible::Grouping, "frame"}};

// A list's own name is its text; it is called by its label.
QString nameOf(const QAccessibleInterface &part) {
    if (part.role() == QAccessible::ComboBox) {
        for (const auto &[label, relation] : part.relations(QAccessible::Label))
            return label->text(QAccessible::Name).trimmed();
    }
    return part.text(QAccessible::Name).trimmed();
}
} // namespace

// What an assistive tool is told of the window and of every form.
class tst_accessibility final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void everyPartHasItsRoleAndName();
    void fieldsTellLabelAndState();

  private:
    void visit(QAccessibleInterface *part, const QString &where);

    QMap<QByteArray, int> mSeen;
    QStringList mFaults;
};

void tst_accessibility::visit(QAccessibleInterface *part, const QString &where) {
    if (part == nullptr || !part->isValid() || part->state().invisible)
        return;
    const QString here = where + u'/' + (part->object() == nullptr ? nameOf(*part) : part->object()->objectName());
    if (kNamed.contains(part->role())) {
        ++mSeen[kNamed.value(part->role())];
        if (nameOf(*part).isEmpty())
            mFaults << here + QStringLiteral(" has no name");
    }
    if (part->state().focusable && !part->state().disabled &&
        (part->role() == QAccessible::NoRole || part->role() == QAccessible::Client))
        mFaults << here + QStringLiteral(" has no role");
    for (int child = 0; child < part->childCount(); ++child)
        visit(part->child(child), here);
}

void tst_accessibility::everyPartHasItsRoleAndName() {
    ProgramBench bench(QStringLiteral("Advanced"));
    for (const ProgramBench::Form &form : bench.forms()) {
        bench.open(form);
        const auto *tabs = bench.form()->findChild<QTabWidget *>(QStringLiteral("SSTab1"));
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr)
                const_cast<QTabWidget *>(tabs)->setCurrentIndex(page);
            visit(QAccessible::queryAccessibleInterface(&bench.window()), form.caption);
        }
    }
    mFaults.removeDuplicates();
    for (const char *kind : kNamed) {
        if (mSeen.value(kind) == 0)
            mFaults << QStringLiteral("no ") + QString::fromLatin1(kind);
    }
    QVERIFY2(mFaults.isEmpty(), qPrintable(mFaults.join(u'\n')));
}

void tst_accessibility::fieldsTellLabelAndState() {
    ProgramBench bench(QStringLiteral("Advanced"));
    QStringList faults;
    int seen = 0;
    for (const ProgramBench::Form &form : bench.forms()) {
        bench.open(form);
        for (const HostControl *control : bench.form()->Iusrfrm_Controls()) {
            static const QMap<QString, QAccessible::Role> kRoles{
                {QStringLiteral("fldTextField"), QAccessible::EditableText},
                {QStringLiteral("fldComboField"), QAccessible::ComboBox},
                {QStringLiteral("fldIdTrackerField"), QAccessible::ComboBox},
                {QStringLiteral("fldCheckboxField"), QAccessible::CheckBox}};
            const QAccessible::Role role = kRoles.value(control->TypeName(), QAccessible::NoRole);
            if (role == QAccessible::NoRole || !control->object()->Ifield_GetVisible())
                continue;
            const QString where = form.caption + u' ' + control->Name();
            QList<QAccessibleInterface *> parts;
            for (QWidget *inner : bench.widget(control->Name())->findChildren<QWidget *>()) {
                QAccessibleInterface *part = QAccessible::queryAccessibleInterface(inner);
                if (inner->isVisibleTo(bench.widget(control->Name())) && part != nullptr && part->role() == role)
                    parts << part;
            }
            if (parts.isEmpty()) {
                faults << where + QStringLiteral(" has no part of its role");
                continue;
            }
            const QAccessibleInterface &part = *parts.constFirst();
            const QString label = plainCaption(control->object()->Ifield_GetName()).trimmed();
            if (!label.isEmpty() && nameOf(part) != label)
                faults << where + QStringLiteral(" is called ") + nameOf(part) + QStringLiteral(", not ") + label;
            if (part.text(QAccessible::Description).isEmpty())
                faults << where + QStringLiteral(" has no description");
            const bool usable = control->object()->Ifield_GetEnabled() && !part.state().readOnly;
            if (usable == part.state().disabled && control->TypeName() != u"fldTextField")
                faults << where + QStringLiteral(" tells a wrong state");
            if (role == QAccessible::CheckBox &&
                part.state().checked != (control->object()->Ifield_GetValue().toInt() != 0))
                faults << where + QStringLiteral(" tells a wrong mark");
            ++seen;
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    QVERIFY(seen > 200);
}

QTEST_MAIN(tst_accessibility)
#include "tst_accessibility.moc"
