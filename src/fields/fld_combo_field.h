#pragma once

#include "list_field.h"

// A caption and a drop-down list. The value is the position in the list, or, with a ComboIndex, the number that is
// stored for that position.
//
// Properties: Caption ("Field"), ID ("Undefined"), List0 (""), LabelWidthFactor (0.6), Enabled (true), ComboIndex (""),
// NavigatorStream (0). Events: "Click", "Escape", "ManualValidate".
class fldComboField final : public ListField, public ComboItems {
    Q_OBJECT
  public:
    fldComboField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    void Clear() override;
    void AddItem(const QString &Text) override;
    void SetComboIndex(const QString &Map) override { mComboIndex = Map; }

    // With a ComboIndex and no choice it fails into the common report.
    QVariant Ifield_GetValue() override;
    // A number below 0 clears the choice; a number above the list or a text shows a message and changes nothing;
    // "Undefined" and "" change nothing. False in all these cases but the first.
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldComboField"); }

  protected:
    [[nodiscard]] bool ignoresChoices() const override { return services().shell.ChangingForms(); }
    void showNothing() override { Ifield_SetValue(0, false); }

  private:
    [[nodiscard]] QString targetFor(const QVariant &value) const;
    void select(qint32 index);
    void complain(const QString &prompt, const QString &target) const;

    QString mComboIndex;
};
