#include "data_form.h"

#include "common_error_handler.h"
#include "control_registry.h"
#include "ctl_form_enabler.h"
#include "form_definition.h"
#include "form_layout.h"
#include "form_texts.h"
#include "ifield.h"
#include "mod_ss_tab_fix.h"
#include "process_values.h"

#include <QPointer>
#include <QResizeEvent>
#include <QTabWidget>

namespace {
const QStringList kFixedForms{QStringLiteral("usrctlFreeFormatDetail"), QStringLiteral("usrctlEconomyKX4600")};
} // namespace

DataForm::DataForm(const FormDefinition &definition, const FieldServices &services, QWidget *parent)
    : QWidget(parent), mDefinition(definition), mServices(services), mErrors(services.errors),
      mEnabler(std::make_shared<ctlFormEnabler>(
          mControls.All(), services,
          [form = QPointer<DataForm>(this)] { return form.isNull() ? nullptr : form->Iusrfrm_ActiveControl(); })),
      mTabManager(services.errors) {
    mEnabler->Caption = definition.enabler.caption();
    mEnabler->HelpID = definition.helpId();
}

DataForm::~DataForm() { Iusrfrm_Terminate(); }

QString DataForm::TypeName() const { return mDefinition.name; }

QSize DataForm::minimumSizeHint() const { return TwipScale::of(*this).toPixels(FormLayout::kCanvas); }

void DataForm::Build(const ControlRegistry &registry) {
    mControls.Build(mDefinition, mServices, registry, *this);
    layOut();
    mEnabler->AccessControls();
    mCallUps.emplace(mControls.Hosts());
    if (mControls.TabWidget() != nullptr)
        connect(mControls.TabWidget(), &QTabWidget::currentChanged, this, &DataForm::showPage);
}

void DataForm::layOut() {
    const FormTexts texts(mServices.process.objTransformer, mServices.translation, font(), logicalDpiX());
    const FormGeometry geometry = FormLayout(texts).arrange(mDefinition);
    for (const std::unique_ptr<FieldHost> &host : mControls.Hosts())
        mFacts.emplace_back(host->TypeName(), geometry.places.value(host->Name()));
    resizeControls();
}

void DataForm::resizeEvent(QResizeEvent *event) try {
    QWidget::resizeEvent(event);
    resizeControls();
}
ERROR_TAIL()

void DataForm::resizeControls() {
    const TwipScale scale = TwipScale::of(*this);
    const QSize least = minimumSizeHint();
    TwipSize area = FormLayout::kCanvas;
    if (!keepsDesignSize() && width() >= least.width() && height() >= least.height())
        area = {scale.ofMeasure({width()}), scale.ofMeasure({height()})};
    for (std::size_t i = 0; i < mFacts.size(); ++i)
        mControls.Hosts()[i]->SetGeometry(mFacts[i].scaled(area));
}

bool DataForm::keepsDesignSize() const { return kFixedForms.contains(mDefinition.name); }

void DataForm::UserControl_Show() try {
    if (!mTabManager.Constructed())
        mTabManager.ClassConstruct(&mControls.All());
    mControls.HideEmptyPages();
    mEnabler->UserControl_Show();
    if (mControls.Tab() != nullptr)
        mControls.Tab()->SelectPage(0);
    showPage();
}
ERROR_TAIL()

void DataForm::showPage() try {
    if (mControls.Tab() != nullptr && !mTerminated)
        SetPageTabStops(*mControls.Tab(), mControls.All());
}
ERROR_TAIL()

std::shared_ptr<Ienabler> DataForm::Iusrfrm_Enabler() { return mEnabler; }

void DataForm::Iusrfrm_Terminate() try {
    if (mTerminated)
        return;
    mTerminated = true;
    mTabManager.ClassDeconstruct();
    terminateFormControls();
    mEnabler->UserControl_Terminate();
}
ERROR_TAIL()

void DataForm::terminateFormControls() {
    for (HostControl *control : mControls.All()) {
        if (Ifield *field = control->object())
            field->Ifield_Terminate();
    }
}

HostControl *DataForm::Iusrfrm_ActiveControl() try {
    QWidget *focused = window()->focusWidget();
    return focused != nullptr && isAncestorOf(focused) ? mControls.ControlOf(focused) : nullptr;
}
ERROR_TAIL(nullptr)
