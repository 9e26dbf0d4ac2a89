#include "cls_printer_settings.h"

#include "print_messages.h"

#include <algorithm>

bool clsPrinterSettings::ShowPrinter(QWidget *window, qint32 flags) try {
    PrinterChoice choice = mChoice;
    if (!mPlatform.PrintDlg(window, flags == 0 ? PrintDialogFlags::kDefault : flags, choice))
        return false;
    choice.DeviceName = choice.DeviceName.section(QChar::Null, 0, 0).toUpper();
    mChoice = choice;
    return true;
} catch (...) {
    PrintMessages::tell(mBoxes, PrintMessages::kNoCommunication);
    return false;
}

void clsPrinterSettings::SetupPrinterObject() try {
    if (mChoice.DeviceName.isEmpty())
        return;
    if (mPlatform.CurrentPrinter() != mChoice.DeviceName)
        selectChosen();
    mPlatform.Apply(mChoice);
} catch (...) {
    PrintMessages::tell(mBoxes, PrintMessages::kNoCommunication);
}

void clsPrinterSettings::selectChosen() {
    const QStringList printers = mPlatform.Printers();
    const auto isChosen = [this](const QString &name) { return name.toUpper().startsWith(mChoice.DeviceName); };
    const auto found = std::ranges::find_if(printers, isChosen);
    if (found != printers.end())
        mPlatform.MakeCurrent(*found);
}
