#pragma once

#include "transformer.h"

#include <QtPlugin>

#include <memory>

// What the plug-in file of the component exports.
class TransformerFactory {
  public:
    virtual ~TransformerFactory() = default;
    [[nodiscard]] virtual std::unique_ptr<Transformer> CreateTransformer() = 0;
};

#define TransformerFactory_iid "com.example.kx4600.TransformerFactory/1"
Q_DECLARE_INTERFACE(TransformerFactory, TransformerFactory_iid)
