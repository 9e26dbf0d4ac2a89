#include "component_loader.h"

#include "run_time_error.h"
#include "transformer_factory.h"

#include <QFileInfo>
#include <QPluginLoader>

namespace {
[[noreturn]] void raise(const QString &reason) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("ComponentLoader"), reason);
}
} // namespace

QStringList ComponentLoader::candidates(const QString &programFolder) {
    const QString named = qEnvironmentVariable("KX4600_TRANSFORMER");
    if (!named.isEmpty())
        return {named};
    QStringList files;
    for (const char *folder : {"/", "/plugins/", "/../lib/kx4600/"})
        files.append(programFolder + QString::fromLatin1(folder) + QStringLiteral("libTransformer.so"));
    return files;
}

std::unique_ptr<Transformer> ComponentLoader::load(const QString &programFolder) {
    for (const QString &file : candidates(programFolder)) {
        if (!QFileInfo::exists(file))
            continue;
        QPluginLoader loader(file);
        auto *factory = qobject_cast<TransformerFactory *>(loader.instance());
        if (factory == nullptr)
            raise(loader.errorString());
        return factory->CreateTransformer();
    }
    raise(QStringLiteral("The component was not found"));
}
