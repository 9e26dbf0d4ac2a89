#pragma once

#include "fake_field.h"

#include <QStringList>

// A drop-down list without a widget.
class FakeCombo final : public FakeField, public ComboItems {
  public:
    FakeCombo(CallLog &log, const QString &name) : FakeField(log, name, QStringLiteral("fldComboField")) {}

    QStringList items;
    QString comboIndex;

    void Clear() override { items.clear(); }
    void AddItem(const QString &Text) override { items << Text; }
    void SetComboIndex(const QString &Map) override { comboIndex = Map; }
};
