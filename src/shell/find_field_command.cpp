#include "find_field_command.h"

#include "busy_pointer.h"
#include "common_error_handler.h"
#include "frm_find_field.h"
#include "process_values.h"
#include "translation.h"

FindFieldCommand::FindFieldCommand(const FieldServices &services, FormFactoryInterface &factory, BusyPointer &pointer,
                                   const FindFieldLanding::Parts &parts)
    : mServices(services), mErrors(services.errors), mPointer(pointer), mMain(parts.window),
      mSearch(services, factory, parts.nodes, parts.window), mLanding(services.process, services.boxes, parts) {}

FindFieldCommand::~FindFieldCommand() = default;

void FindFieldCommand::mnuFindField_Click() try {
    if (mFindWindow == nullptr)
        mFindWindow = makeWindow();
    mFindWindow->ShowAgain();
}
ERROR_TAIL()

std::unique_ptr<frmFindField> FindFieldCommand::makeWindow() {
    const auto search = [this](const QString &text) {
        const HourglassGuard hourglass(mPointer);
        return mSearch.Find(text);
    };
    return std::make_unique<frmFindField>(
        frmFindField::Services{search, [this](const FindFieldHit &hit) { mLanding.Open(hit); },
                               [this](const QString &text) { return mServices.translation.NLSStr(text); }, mErrors},
        &mMain);
}
