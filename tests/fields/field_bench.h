#pragma once

#include "field_host.h"
#include "field_properties.h"
#include "recording_host.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QStringList>
#include <QWidget>

#include <map>
#include <memory>
#include <vector>

// A window on which a test puts fields, each with a host and a listener; the component is the recording double.
class FieldBench {
  public:
    FieldBench();

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    QWidget window;
    QStringList heard; // the events of all fields, in order

    // ID and object name are the name. The field stands below the one before, 6,000 twips wide.
    template <class Field>
    Field &add(const QString &name, QVariantMap properties = {}, QWidget *parent = nullptr) {
        properties.insert(QStringLiteral("ID"), name);
        auto *field = new Field(services.fieldServices(), {QStringLiteral("bench.json"), name, properties},
                                parent == nullptr ? &window : parent);
        enter(*field, name);
        return *field;
    }
    [[nodiscard]] RecordingHost &listener(const QString &name) { return *mListeners.at(name); }
    [[nodiscard]] FieldHost &host(const QString &name) { return *mHosts.at(name); }
    // What was heard since the last call.
    QStringList takeHeard();
    // Makes the window active and empties what was heard.
    void show();
    // Then the focus is in that field.
    template <class Field>
    void showWithFocus(Field &field) {
        show();
        field.Ifield_SetFocus();
        heard.clear();
    }

    // An inner part by its name.
    template <class Part>
    [[nodiscard]] static Part &part(const QWidget &field, const char *name) {
        auto *found = field.findChild<Part *>(QString::fromLatin1(name));
        Q_ASSERT(found != nullptr);
        return *found;
    }

  private:
    void enter(QWidget &field, const QString &name);

    std::map<QString, std::unique_ptr<RecordingHost>> mListeners;
    std::map<QString, std::unique_ptr<FieldHost>> mHosts;
};
