#pragma once

#include "form_definition.h"
#include "form_layout.h"

#include <QHash>
#include <QRegularExpression>

// Texts of a fixed width a character, so that a test does not hang on the fonts of the machine: a little more than the
// usual nine-point font takes.
class FixedTexts final : public LayoutText {
  public:
    enum class Labels { OfTheirIds, FullLength };
    explicit FixedTexts(Labels labels) : mLabels(labels) {}

    // A field is labelled with the words of its ID, at most 24 characters, or with 24 characters in all cases. The
    // slots of a tone table bear the tone alone.
    [[nodiscard]] QString caption(const ControlDefinition &control) const override {
        static const QRegularExpression slot(QStringLiteral("^CustomFrequencies(.)$"));
        static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
        if (const auto match = slot.match(control.id()); match.hasMatch())
            return match.captured(1);
        if (control.typeName.endsWith(u"Frame"))
            return control.caption().trimmed();
        if (mLabels == Labels::FullLength)
            return QStringLiteral("Wait for Acknowledgement");
        return control.id().remove(QStringLiteral("_q7r")).replace(wordStart, QStringLiteral(" ")).left(24).trimmed();
    }
    [[nodiscard]] Twips width(const QString &text) const override { return {qint32(text.size()) * 98}; }
    [[nodiscard]] Twips titleWidth(const QString &text) const override { return {qint32(text.size()) * 110}; }
    [[nodiscard]] Twips lineHeight() const override { return {225}; }

  private:
    Labels mLabels;
};
