#include "frm_sub_form.h"

#include "common_error_handler.h"
#include "data_form.h"
#include "form_factory.h"
#include "ienabler.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"

#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace {
const QString kMain = QStringLiteral("Main");
const QString kSub = QStringLiteral("Sub");
} // namespace

frmSubForm::frmSubForm(FormFactory &factory, const FieldServices &services, QWidget *owner)
    : QDialog(owner), mFactory(factory), mServices(services), mErrors(services.errors), mfraBorder(new QFrame(this)),
      mpicInternalFrame(new QWidget(mfraBorder)), mOKButton(new QPushButton(this)), mcmdCancel(new QPushButton(this)) {
    setObjectName(QStringLiteral("frmSubForm"));
    setModal(true);
    setUpParts();
}

frmSubForm::~frmSubForm() { Form_Unload(); }

void frmSubForm::setUpParts() {
    mfraBorder->setObjectName(QStringLiteral("fraBorder"));
    mfraBorder->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    mpicInternalFrame->setObjectName(QStringLiteral("picInternalFrame"));
    mOKButton->setObjectName(QStringLiteral("OKButton"));
    mOKButton->setText(mServices.translation.NLSStr(QStringLiteral("&OK")));
    mOKButton->setAutoDefault(false);
    mcmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    mcmdCancel->setText(mServices.translation.NLSStr(QStringLiteral("&Cancel")));
    mcmdCancel->setAutoDefault(false);
    connect(mOKButton, &QPushButton::clicked, this, &frmSubForm::OKButton_Click);
    connect(mcmdCancel, &QPushButton::clicked, this, &frmSubForm::cmdCancel_Click);

    auto *inside = new QVBoxLayout(mfraBorder);
    inside->addWidget(mpicInternalFrame);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(mOKButton);
    buttons->addWidget(mcmdCancel);
    auto *all = new QVBoxLayout(this);
    all->addWidget(mfraBorder);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmSubForm::OpenSubForm(qint32 record, const QString &firstControl) try {
    // However it ends, also by an error in the middle, the hosted form goes.
    const auto unload = qScopeGuard([this] { Form_Unload(); });
    hostForm(record);
    show();
    mForm->UserControl_Show();
    focusOn(firstControl);
    exec();
}
ERROR_TAIL()

void frmSubForm::focusOn(const QString &control) {
    for (HostControl *candidate : mForm->Iusrfrm_Controls()) {
        if (!control.isEmpty() && candidate->Name() == control)
            candidate->SetFocus();
    }
}

void frmSubForm::hostForm(qint32 record) {
    mForm = mFactory.CreateForm(mTag, mServices, mpicInternalFrame);
    mForm->setObjectName(QStringLiteral("currentlyOpenUsrctl"));
    mForm->resize(mForm->sizeHint());
    mpicInternalFrame->setFixedSize(mForm->size());
    mForm->show();
    const auto enabler = mForm->Iusrfrm_Enabler();
    mServices.process.colEnablers.Add(enabler, kSub);
    mServices.process.CurrentEnablerKey = kSub;
    enabler->Ienabler_InitialiseFields(record);
    mSaved.emplace(mForm->Iusrfrm_Controls(), mServices);
    mSaved->keep();
}

void frmSubForm::Form_Unload() try {
    if (mForm == nullptr)
        return;
    mServices.process.CurrentEnablerKey = kMain;
    mServices.process.colEnablers.Remove(kSub);
    mSaved.reset();
    DataForm *form = mForm;
    mForm = nullptr;
    form->Iusrfrm_Terminate();
    form->hide();
    form->deleteLater();
}
ERROR_TAIL()

void frmSubForm::OKButton_Click() try {
    const auto enabler = mServices.process.colEnablers.Item(kSub);
    Transformer *component = mServices.process.objTransformer;
    if (enabler == nullptr || component == nullptr)
        return;
    enabler->Ienabler_ForceSaveToCurrentField();
    if (!enabler->Ienabler_OKToLeaveForm() || !enabler->Ienabler_ValidateForm(true))
        return;
    component->SaveForm(component->GetCurrentTier());
    done(QDialog::Accepted);
}
ERROR_TAIL()

void frmSubForm::cmdCancel_Click() try {
    RollbackSubForm();
    done(QDialog::Rejected);
}
ERROR_TAIL()

void frmSubForm::RollbackSubForm() try {
    if (!mSaved)
        return;
    mServices.shell.SilentMode(true);
    const auto loud = qScopeGuard([this] { mServices.shell.SilentMode(false); });
    mSaved->rollback();
}
ERROR_TAIL()

void frmSubForm::closeEvent(QCloseEvent *event) try {
    RollbackSubForm();
    event->accept();
    done(QDialog::Rejected);
}
ERROR_TAIL()

void frmSubForm::keyPressEvent(QKeyEvent *event) try {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter) {
        for (QPushButton *button : {mOKButton, mcmdCancel}) {
            if (button->hasFocus())
                return button->click();
        }
    }
    if (!enter && event->key() != Qt::Key_Escape)
        QDialog::keyPressEvent(event);
}
ERROR_TAIL()
