#pragma once

#include "form_definition.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

#include <optional>
#include <set>

// Reads one form's definition. Whatever does not belong there is refused with file, control and key: an unknown key or
// class, a value of the wrong type or one that equals its default, a name that stands twice (without regard to case),
// controls inside a control that holds none, a reference to a control that the form does not have.
class FormDefinitionReader {
  public:
    // fileName without folder, for the messages: "usrctlPTT.json" must hold the form "usrctlPTT".
    explicit FormDefinitionReader(QString fileName);

    // Raises error 5 with what is wrong.
    [[nodiscard]] FormDefinition read(const QByteArray &text);

  private:
    [[noreturn]] void refuse(const QString &where, const QString &what) const;
    void refuseUnknownKeys(const QString &where, const QJsonObject &object, const QStringList &known) const;
    [[nodiscard]] std::vector<ControlDefinition> readControls(const QString &where, const QJsonValue &list);
    [[nodiscard]] ControlDefinition readControl(const QString &where, const QJsonObject &object);
    [[nodiscard]] PageDefinition readPage(const QJsonObject &object);
    void readProperties(ControlDefinition &control, const QJsonObject &object) const;
    [[nodiscard]] QVariant readValue(const ControlDefinition &control, const QString &key,
                                     const QJsonValue &value) const;
    void takeName(const QString &where, const QString &name);
    void checkReferences(const FormDefinition &form) const;

    QString mFileName;
    std::set<QString> mNames; // lower case
};
