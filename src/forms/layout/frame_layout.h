#pragma once

#include "arrangement.h"
#include "field_column.h"
#include "layout_text.h"

// The inside of one frame: its fields in one or two columns, below them its headings as columns of a table (a single
// heading stands beside the fields instead), below these its grids, over the whole width.
class FrameLayout {
  public:
    enum class Columns { One, Two };

    FrameLayout(const LayoutText &text, const ControlDefinition &frame);

    // Rows of fields outside headings.
    [[nodiscard]] int fieldRowCount() const { return int(mRows.size()); }
    [[nodiscard]] bool hasHeadings() const { return !mHeadings.empty(); }
    // It can make use of more height than it needs.
    [[nodiscard]] bool stretches() const { return !mGrids.empty(); }
    // All places are relative to the frame. height is what it needs, or atLeast if that is more.
    [[nodiscard]] Arrangement arrange(Twips width, Columns columns, Twips atLeast = {}) const;

  private:
    [[nodiscard]] bool bordered() const;
    [[nodiscard]] Twips topInset() const;
    void addFields(Arrangement &result, Twips left, Twips width, Columns columns) const;
    void addHeadings(Arrangement &result, Twips left, Twips width) const;
    void addGrids(Arrangement &result, Twips left, Twips width, Twips bottom) const;

    const LayoutText &mText;
    const ControlDefinition &mFrame;
    std::vector<FieldRow> mRows;
    std::vector<const ControlDefinition *> mHeadings;
    std::vector<const ControlDefinition *> mGrids;
};
