#include "find_field_search.h"

#include "ctl_form_enabler.h"
#include "form_nodes.h"
#include "ifield.h"
#include "igrid.h"
#include "iusrfrm.h"
#include "process_values.h"
#include "shell_ports.h"
#include "sub_form_call_up.h"
#include "transformer.h"
#include "translation.h"

#include <QWidget>

#include <memory>

namespace {
const QString kNotFound = QStringLiteral("Not Found");
const QString kFind = QStringLiteral("Find");
const QString kSeparator = QStringLiteral(" - ");
const QString kNavigator = QStringLiteral("fldPageNavigator");

bool matches(const QString &name, const QString &upperText) { return name.toUpper().contains(upperText); }

QString labelOf(const FieldServices &services, const QString &uiid) {
    return services.translation.NLSStr(services.process.objTransformer->GetLabel(uiid));
}

// By their class names, each once.
QStringList calledForms(const QWidget &form) {
    QStringList names;
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        if (const auto *callUp = dynamic_cast<const SubFormCallUp *>(widget))
            names << callUp->CalledForm();
    }
    names.removeDuplicates();
    return names;
}

// A form for a moment: its enabler is the current one meanwhile.
class BorrowedForm {
  public:
    BorrowedForm(ProcessValues &process, const HostedForm &form)
        : mProcess(process), mForm(form), mKey(process.CurrentEnablerKey) {
        mForm.widget->setObjectName(QStringLiteral("usrfrmFind"));
        mProcess.colEnablers.Add(mForm.form->Iusrfrm_Enabler(), kFind);
        mProcess.CurrentEnablerKey = kFind;
    }
    ~BorrowedForm() {
        mProcess.CurrentEnablerKey = mKey;
        mProcess.colEnablers.Remove(kFind);
        mForm.form->Iusrfrm_Terminate();
        delete mForm.widget;
    }
    Q_DISABLE_COPY_MOVE(BorrowedForm)

  private:
    ProcessValues &mProcess;
    HostedForm mForm;
    QString mKey;
};
} // namespace

QString FindFieldHit::Line() const { return form + kSeparator + label + u'\t' + name; }

std::optional<FindFieldHit> FindFieldHit::FromLine(const QString &line) {
    const QString shown = line.section(u'\t', 0, 0);
    const qsizetype end = shown.indexOf(kSeparator);
    if (end < 0)
        return std::nullopt;
    return FindFieldHit{shown.left(end), shown.mid(end + kSeparator.size()), line.section(u'\t', 1)};
}

FindFieldSearch::FindFieldSearch(const FieldServices &services, FormFactoryInterface &factory, const FormNodes &nodes,
                                 QWidget &window)
    : mServices(services), mFactory(factory), mNodes(nodes), mWindow(window) {}

QStringList FindFieldSearch::Find(const QString &text) const {
    QStringList lines;
    for (qint32 node = 1; node <= mNodes.Count(); ++node) {
        if (mNodes.Children(node).empty())
            CheckForm(mNodes.Key(node), {mNodes.Text(node), QString(), text.toUpper()}, lines);
    }
    return lines.isEmpty() ? QStringList{kNotFound} : lines;
}

void FindFieldSearch::CheckForm(const QString &key, const FindFieldHit &pattern, QStringList &lines) const {
    if (!mFactory.CanCreate(key))
        return;
    QStringList subForms;
    {
        const HostedForm form = mFactory.CreateForm(key, mServices, &mWindow);
        const BorrowedForm borrowed(mServices.process, form);
        checkControls(*form.form, pattern, lines);
        subForms = calledForms(*form.widget);
    }
    for (const QString &subForm : subForms)
        CheckForm(subForm, pattern, lines);
}

void FindFieldSearch::checkControls(Iusrfrm &form, const FindFieldHit &pattern, QStringList &lines) const {
    static const QStringList kFields{QStringLiteral("fldTextField"),      QStringLiteral("fldComboField"),
                                     QStringLiteral("fldIdTrackerField"), QStringLiteral("fldCheckboxField"),
                                     QStringLiteral("fldSliderField"),    kNavigator};
    const auto test = [&](const QString &name, const QString &label) {
        if (matches(name, pattern.name) || matches(label, pattern.name))
            lines << FindFieldHit{pattern.form, label, name}.Line();
    };
    for (const HostControl *control : form.Iusrfrm_Controls()) {
        if (kFields.contains(control->TypeName())) {
            setLabel(form, *control);
            const Ifield &field = *control->object();
            // A check box in a column with a heading has blanks for a caption.
            const bool blank = field.Ifield_GetName().trimmed().isEmpty();
            test(control->Name(), blank ? labelOf(mServices, field.Ifield_GetUIID()) : field.Ifield_GetName());
        } else if (const auto *grid = dynamic_cast<const Igrid *>(control->object())) {
            for (const QString &uiid : grid->Igrid_GetUIIDList().split(u'|', Qt::SkipEmptyParts))
                test(uiid, labelOf(mServices, uiid));
        }
    }
}

void FindFieldSearch::setLabel(Iusrfrm &form, const HostControl &control) const {
    const auto enabler = std::dynamic_pointer_cast<ctlFormEnabler>(form.Iusrfrm_Enabler());
    const auto item = control.object()->Ifield_WrapperCtrlItem();
    if (enabler == nullptr || item == nullptr)
        return;
    if (control.TypeName() == kNavigator)
        enabler->SetNavFieldLabel(item);
    else
        enabler->SetFieldLabel(item);
}
