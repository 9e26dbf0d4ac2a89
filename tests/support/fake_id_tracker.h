#pragma once

#include "fake_field.h"

#include <QStringList>

// An ID tracker without a widget; items as "text=value".
class FakeIdTracker final : public FakeField, public IdItems {
  public:
    FakeIdTracker(CallLog &log, const QString &name) : FakeField(log, name, QStringLiteral("fldIdTrackerField")) {}

    QStringList items;

    void Clear() override { items.clear(); }
    void AddItem(const QString &Text, const QVariant &Value) override { items << Text + u'=' + CallLog::textOf(Value); }
};
