#pragma once

#include "arrangement.h"
#include "layout_text.h"

#include <span>
#include <vector>

// A row of a frame: a control with its label, and what stands behind it (a call-up, fields without a label).
using FieldRow = std::vector<const ControlDefinition *>;

// Fields below each other. A field's own layout gives its label the share LabelWidthFactor of its width; so the widths
// are chosen such that all editing parts begin on one line, with room for the labels and, where there is space, for the
// editing parts. A row whose label needs more than one line is as much higher.
class FieldColumn {
  public:
    enum class Fill { Comfortable, Whole }; // Whole: each field takes the column's whole width

    FieldColumn(const LayoutText &text, std::vector<FieldRow> rows, Twips width, Fill fill);

    [[nodiscard]] std::vector<Twips> rowHeights() const;
    // heights: one for each row, or more; at least rowHeights().
    [[nodiscard]] Arrangement arrange(Twips left, Twips top, std::span<const Twips> heights) const;

  private:
    [[nodiscard]] double line() const;
    [[nodiscard]] double leastBox(const ControlDefinition &field) const;
    [[nodiscard]] double widthWith(const FieldRow &row, double line) const;
    [[nodiscard]] double widestWithFollowers(const FieldRow &row) const;
    [[nodiscard]] int captionLines(const FieldRow &row, Twips width) const;
    void addRow(Arrangement &result, const FieldRow &row, Twips rowWidth, Twips left, Twips top, Twips height) const;

    const LayoutText &mText;
    std::vector<FieldRow> mRows;
    Twips mWidth;
    std::vector<Twips> mRowWidths; // of each row's first control
};

// Makes rows of a frame's fields: a call-up, and a field whose factor is 0, stand behind the field before them.
[[nodiscard]] std::vector<FieldRow> fieldRows(std::span<const ControlDefinition *const> fields);
