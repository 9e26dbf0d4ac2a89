#include "program_bench.h"

#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "test_failure.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QDir>
#include <QFile>
#include <QToolButton>
#include <QTreeWidget>

namespace {
constexpr int kWidth = 1024;
constexpr int kHeight = 768;

void writeLanguage(const QString &folder, qint32 language) {
    QDir().mkpath(folder);
    QFile settings(folder + QStringLiteral("/settings.ini"));
    if (!settings.open(QIODevice::WriteOnly))
        qFatal("no settings could be written");
    settings.write("[General]\nLanguage=" + QByteArray::number(language) + '\n');
}
} // namespace

ProgramBench::ProgramBench(qint32 language) {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, (mHome.path() + u'/' + QLatin1String(name)).toUtf8());
    writeLanguage(mHome.path() + QStringLiteral("/XDG_CONFIG_HOME/KX4600"), language);
    mProgram = std::make_unique<MainProgram>(errors, QStringList(), ProgramReplacements{nullptr, &boxes});
    if (!mProgram->Start())
        qFatal("the program did not start");
    window().resize(kWidth, kHeight);
    WindowInput::activate(window());
}

ProgramBench::~ProgramBench() = default;

frmMain &ProgramBench::window() const { return mProgram->Window(); }
Transformer &ProgramBench::component() const { return mProgram->Component(); }

void ProgramBench::chooseTier(const QString &key) {
    auto *button = window().findChild<QToolButton *>(key);
    if (button == nullptr)
        return failTest(QStringLiteral("there is no tier ") + key);
    button->click();
    if (component().GetCurrentTier() != key)
        failTest(QStringLiteral("the tier is not ") + key);
}

bool ProgramBench::openForm(const QString &caption) {
    auto *tree = window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    const QList<QTreeWidgetItem *> items = tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    if (items.size() != 1)
        return false;
    tree->scrollToItem(items.constFirst());
    WindowInput::clickAt(*tree->viewport(), tree->visualItemRect(items.constFirst()).center());
    if (component().GetCurrentFormName() != caption)
        failTest(QStringLiteral("a click on %1 opened %2").arg(caption, component().GetCurrentFormName()));
    return true;
}

DataForm *ProgramBench::form() const { return window().findChild<DataForm *>(QStringLiteral("currentlyOpenUsrctl")); }

HostControl *ProgramBench::control(const QString &name) const {
    for (HostControl *control : form()->Iusrfrm_Controls()) {
        if (control->Name() == name)
            return control;
    }
    return nullptr;
}

Ifield *ProgramBench::field(const QString &name) const {
    HostControl *found = control(name);
    return found == nullptr ? nullptr : found->object();
}

QWidget *ProgramBench::widget(const QString &name) const { return dynamic_cast<QWidget *>(field(name)); }

QString ProgramBench::value(const QString &uiid, qint32 record) const {
    return ValueText::of(component().GetValue(uiid, record));
}

void ProgramBench::setValue(const QString &uiid, qint32 record, const QVariant &value) const {
    bool accepted = false;
    component().SetValue(uiid, value, record, true, accepted);
    if (!accepted)
        failTest(QStringLiteral("%1 %2 was refused").arg(uiid, ValueText::of(value)));
}
