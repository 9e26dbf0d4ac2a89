#include "transformer_plugin.h"

#include "transformer_component.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {
QString clipboardText() {
    // Without a window system (a tool, a test) there is no clipboard.
    const bool hasClipboard = qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
    return hasClipboard ? QGuiApplication::clipboard()->text() : QString();
}
} // namespace

std::unique_ptr<Transformer> TransformerPlugin::CreateTransformer() {
    return std::make_unique<TransformerComponent>(ComponentPlaces::ofUser(), clipboardText);
}
