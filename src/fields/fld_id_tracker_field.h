#pragma once

#include "list_field.h"

#include <QHash>

// A drop-down list that follows records by their identity: each item stands for a value, and a value that the list does
// not hold is added to it, so that it shows all the same.
//
// Properties: Caption ("Field"), ID ("Undefined"), List0 (""), LabelWidthFactor (0.6), Enabled (true), NavigatorStream
// (0). Events: "Click", "Escape", "Initialise" (before the list opens), "ManualValidate".
class fldIdTrackerField final : public ListField, public IdItems {
    Q_OBJECT
  public:
    fldIdTrackerField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    // Empties the list; the values of its texts stay known.
    void Clear() override;
    void AddItem(const QString &Text, const QVariant &Value) override;

    // The value of the chosen text; without a choice, or for a text without a value, it fails into the common report.
    QVariant Ifield_GetValue() override;
    // The value is translated before it is looked for among the texts. An empty list, and "Undefined", change nothing.
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldIdTrackerField"); }

  protected:
    void showNothing() override { Ifield_SetValue(0, false); }

  private:
    void Combo1_DropDown();
    void show(const QVariant &value);

    QHash<QString, QVariant> mValues; // by the text of an item
};
