#pragma once

#include "transformer_factory.h"

#include <QObject>

// What the window's program loads: makes the component over the user's folders and the clipboard.
class TransformerPlugin final : public QObject, public TransformerFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TransformerFactory_iid FILE "transformer_plugin.json")
    Q_INTERFACES(TransformerFactory)

  public:
    [[nodiscard]] std::unique_ptr<Transformer> CreateTransformer() override;
};
