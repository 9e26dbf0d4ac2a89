#pragma once

#include <QJsonArray>
#include <QJsonObject>

class FormCatalogue;
struct FormDefinition;

// Form definitions as JSON for people and tools.
namespace FormJson {
// {name, helpId, pages: [{caption, controls: [names directly on the page]}],
//  controls: [{name, type, id, parent, properties}]}, the controls in tab order. parent: a frame's name, "SSTab1" for a
// control directly on a page, null on the form itself. id: null for a class without an ID. properties: the stored ones.
[[nodiscard]] QJsonObject ofForm(const FormDefinition &form);
[[nodiscard]] QJsonArray ofAllForms(FormCatalogue &catalogue);
} // namespace FormJson
