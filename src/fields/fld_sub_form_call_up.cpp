#include "fld_sub_form_call_up.h"

#include "common_error_handler.h"
#include "field_properties.h"
#include "translation.h"

#include <QPushButton>

namespace {
constexpr TwipSize kDefinitionSize{{1110}, {555}};
constexpr Twips kTop{50};
constexpr Twips kHeight{315};
} // namespace

fldSubFormCallUp::fldSubFormCallUp(const FieldServices &services, const FieldProperties &properties,
                                   SubFormOpener &opener, QWidget *parent)
    : ButtonControl(services, QStringLiteral("cmdCallUp"), parent), mOpener(opener) {
    PropertyReader reader(properties);
    readCaption(reader, QStringLiteral("Details"));
    mRequest.SubFormControlName = reader.text(QStringLiteral("SubFormControlName"), QString());
    mRequest.SubFormDescription = reader.text(QStringLiteral("SubFormDescription"), QString());
    mRequest.SubFormRecordNr = reader.integer(QStringLiteral("SubFormRecordNr"), 0);
    reader.refuseUnknown();
    // All call-ups of a form may have the same caption; this tells them apart.
    button().setAccessibleDescription(services.translation.NLSStr(mRequest.SubFormDescription));
    connect(&button(), &QPushButton::clicked, this, &fldSubFormCallUp::cmdCallUp_Click);
    SetTabStop(true);
    SetControlSize(kDefinitionSize);
}

void fldSubFormCallUp::cmdCallUp_Click() { CallUp(QString()); }

void fldSubFormCallUp::CallUp(const QString &firstControl) {
    // The control may be gone when the window has closed.
    ErrorReport &errors = mErrors;
    try {
        SubFormRequest request = mRequest;
        request.FirstControl = firstControl;
        mOpener.OpenSubForm(request, services(), window());
    } catch (...) {
        errors.Tail("cmdCallUp_Click");
    }
}

TwipSize fldSubFormCallUp::SetControlSize(const TwipSize &size) {
    place({{0}, kTop, size.width, kHeight});
    const TwipSize taken{size.width, kTop + kHeight};
    resize(TwipScale::of(*this).toPixels(taken));
    return taken;
}
