#include "column_layout.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace {
struct Bounds {
    double least = 0;
    double most = 0;
};

double sumOf(const std::vector<ColumnNeed> &needs, double ColumnNeed::*need, double gap) {
    return std::transform_reduce(needs.begin(), needs.end(), 0.0, std::plus<>(),
                                 [&](const ColumnNeed &column) { return column.*need + gap; });
}

// Parts of a character are no use to a column: those that would have some give them up, the first ones get whole ones.
void roundToCharacters(std::vector<double> &shares, const std::vector<Bounds> &bounds, double total, double character) {
    constexpr double kRounding = 1e-6;
    for (std::size_t column = 0; column < shares.size(); ++column) {
        double &share = shares[column];
        if (share < bounds[column].most)
            share = std::max(bounds[column].least, std::floor(share / character + kRounding) * character);
        total -= share;
    }
    for (std::size_t column = 0; column < shares.size(); ++column) {
        const double more = std::min(character, bounds[column].most - shares[column]);
        if (more > total + kRounding)
            continue;
        shares[column] += more;
        total -= more;
    }
}

// As equal as their bounds allow; together the total, or less where none may be wider.
std::vector<double> sharesOf(double total, const std::vector<Bounds> &bounds, double character) {
    constexpr int kHalvings = 60;
    std::vector<double> shares(bounds.size());
    const auto shareAt = [&](double level) {
        std::ranges::transform(bounds, shares.begin(),
                               [level](const Bounds &column) { return std::clamp(level, column.least, column.most); });
        return std::accumulate(shares.begin(), shares.end(), 0.0);
    };
    double low = 0;
    double high = total;
    for (int halving = 0; halving < kHalvings; ++halving) {
        const double level = std::midpoint(low, high);
        (shareAt(level) <= total ? low : high) = level;
    }
    shareAt(low);
    roundToCharacters(shares, bounds, total, character);
    return shares;
}

// The gap behind the last column stands in the margin.
std::vector<double> widthsByNeed(const std::vector<ColumnNeed> &needs, double lineWidth, double gap) {
    const double total = lineWidth + gap;
    const bool wordsFit = sumOf(needs, &ColumnNeed::word, gap) <= total;
    std::vector<Bounds> bounds;
    bounds.reserve(needs.size());
    for (const ColumnNeed &need : needs)
        bounds.push_back(wordsFit ? Bounds{need.word + gap, need.text + gap} : Bounds{0, need.word + gap});
    return sharesOf(total, bounds, gap);
}
} // namespace

std::vector<Column> layOutColumns(const std::vector<ColumnNeed> &needs, double left, double lineWidth, double gap) {
    const double equal = lineWidth / double(needs.size());
    const bool wordsFit = std::ranges::all_of(needs, [&](const ColumnNeed &need) { return need.word + gap <= equal; });
    const std::vector<double> widths =
        wordsFit ? std::vector<double>(needs.size(), equal) : widthsByNeed(needs, lineWidth, gap);
    std::vector<Column> columns;
    columns.reserve(widths.size());
    for (const double width : widths) {
        columns.push_back({left, width});
        left += width;
    }
    return columns;
}
