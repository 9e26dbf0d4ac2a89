#pragma once

#include "component_listener.h"
#include "component_state.h"
#include "dictionary_loader.h"
#include "value_text.h"

#include <QTest>

#include <memory>

// What tests of a component with nothing kept share: a fresh one in the tier "Advanced" for each test, and its
// listener.
class ComponentBench {
  protected:
    void start() {
        if (mComponent != nullptr)
            stop();
        mListener = std::make_unique<ComponentListener>();
        mComponent = std::make_unique<TransformerComponent>(ComponentPlaces{});
        mComponent->AddListener(mListener.get());
        mComponent->ChangeTier(QStringLiteral("Advanced"));
        mListener->clear();
    }
    void stop() {
        mComponent->ShutDown();
        mComponent.reset();
    }
    bool set(const QString &uiid, const QVariant &value, qint32 record = 1) {
        bool ok = false;
        mComponent->SetValue(uiid, value, record, true, ok);
        return ok;
    }
    [[nodiscard]] QString get(const QString &uiid, qint32 record = 1) const {
        return ValueText::of(mComponent->GetValue(uiid, record));
    }
    bool add(const QString &guide) {
        qint32 added = 0;
        bool ok = false;
        mComponent->AddRecord(guide, QString(), added, ok);
        return ok;
    }
    // One record at least of everything that the tier can have.
    void fill(const QString &tier, qint32 version = 2) {
        mComponent->ChangeTier(tier);
        mComponent->state().current().setVersionLevel(version);
        for (const RecordStructure &structure : mDictionary->structures()) {
            const bool canGrow = !structure.isRadio() && structure.in(mComponent->state().tier()).most > 0;
            if (canGrow && mComponent->GetNumberOfRecords(structure.guide) == 0)
                QVERIFY2(add(structure.guide), qPrintable(structure.name));
        }
        mListener->clear();
    }

    std::unique_ptr<const Dictionary> mDictionary = DictionaryLoader::loadCompiledIn();
    std::unique_ptr<ComponentListener> mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};
