#pragma once

#include "arrangement.h"
#include "field_column.h"
#include "layout_text.h"

#include <optional>
#include <vector>

// Columns side by side with equal rows. A column is a heading with its fields, or, without a heading, the fields that
// carry the row labels.
struct TableColumn {
    const ControlDefinition *heading; // null: the fields stand on the container itself
    std::vector<FieldRow> rows;
};

class HeadingTable {
  public:
    HeadingTable(const LayoutText &text, std::vector<TableColumn> columns, Twips width);

    // The fields of a heading are placed relative to it, everything else relative to the container.
    [[nodiscard]] Arrangement arrange(Twips left, Twips top) const;

  private:
    [[nodiscard]] std::vector<double> widths(bool wholeCaptions) const;
    [[nodiscard]] double boxWidth(const std::vector<std::optional<double>> &fixed) const;
    [[nodiscard]] double neededWidth(const TableColumn &column, bool wholeCaptions) const;
    [[nodiscard]] Twips titleHeight(const TableColumn &column, Twips width) const;
    void chooseWidths();

    const LayoutText &mText;
    std::vector<TableColumn> mColumns;
    double mWidth; // without the gaps
    std::vector<Twips> mWidths;
};
