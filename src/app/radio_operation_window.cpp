#include "radio_operation_window.h"

#include "frm_port_choice.h"
#include "process_values.h"
#include "progress_info.h"
#include "radio_port_search.h"
#include "serial_ports.h"
#include "transformer.h"
#include "value_text.h"

namespace {
// "COM3: Depot radio", or without a name the device.
QString portName(Transformer &transformer) {
    const QString number = ValueText::of(transformer.GetSetting(QStringLiteral("CommPortNumber"), 1));
    QString com = QStringLiteral("COM") + number;
    const SerialPorts ports;
    for (const SerialPortEntry &entry : ports.List()) {
        if (QString::number(entry.number) == number)
            return com + QStringLiteral(": ") + (entry.name.isEmpty() ? entry.device : entry.name);
    }
    return com;
}
} // namespace

bool runRadioOperation(ProcessValues &process, const Translation &translation, ErrorReport &errors,
                       InterrogationType type, QWidget *owner) {
    const auto runOnce = [&](InterrogationType operation) {
        frmProgressInfo window(process, translation, errors, operation, portName(*process.objTransformer), owner);
        window.exec();
        return RadioContact{.answered = window.RadioAnswered(), .read = window.Result(), .noRadio = window.NoRadio()};
    };
    const auto choose = [&](const QString &problem, int storedNumber) {
        const SerialPorts ports;
        frmPortChoice window(translation, ports, problem, storedNumber, owner);
        return window.exec() == QDialog::Accepted ? window.PortNumber() : 0;
    };
    return RadioPortSearch(process, runOnce, choose).Run(type);
}
