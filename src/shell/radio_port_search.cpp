#include "radio_port_search.h"

#include "setting.h"
#include "transformer.h"

#include <utility>

namespace {
const QString kPort = QStringLiteral("CommPortNumber");
} // namespace

RadioPortSearch::RadioPortSearch(const ProcessValues &process, OperationWindow window, PortChoice choice)
    : mProcess(process), mWindow(std::move(window)), mChoice(std::move(choice)) {}

bool RadioPortSearch::Run(InterrogationType type) {
    RadioContact contact = mWindow(type);
    const bool read = contact.read;
    int tried = 0;
    while (!contact.noRadio.isEmpty() && mProcess.objTransformer != nullptr) {
        if (tried == 0)
            tried = Setting::integer(*mProcess.objTransformer, kPort, 1);
        tried = mChoice(contact.noRadio, tried);
        if (tried == 0)
            break;
        contact = interrogate(tried);
    }
    return read;
}

// The component takes the port from the settings, so the chosen one stands there while it is tried.
RadioContact RadioPortSearch::interrogate(int port) {
    const qint32 stored = Setting::integer(*mProcess.objTransformer, kPort, 1);
    mProcess.objTransformer->SaveSetting(kPort, port);
    RadioContact contact = mWindow(InterrogationType::kInterrogate);
    if (!contact.answered && mProcess.objTransformer != nullptr)
        mProcess.objTransformer->SaveSetting(kPort, stored);
    return contact;
}
