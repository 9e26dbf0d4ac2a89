#include "form_tree_delegate.h"

#include "form_tree_widget.h"

#include <cmath>

namespace {
double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrastOf(const QColor &one, const QColor &other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

QColor mixed(const QColor &from, const QColor &to, double share) {
    const auto channel = [share](double a, double b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()));
}
} // namespace

QColor FormTreeDelegate::legible(const QColor &from, const QColor &to, const QColor &ground, double contrast) {
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor colour = mixed(from, to, double(step) / kSteps);
        if (contrastOf(colour, ground) >= contrast)
            return colour;
    }
    return to;
}

void FormTreeDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QPalette &palette = option->palette;
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const quint32 state = index.data(FormTreeWidget::kColourRole).toUInt();
    if (state == NodeColour::kButtonShadow)
        option->palette.setColor(QPalette::Text, legible(palette.color(QPalette::Dark), text, base, 4.5));
    else if (state == NodeColour::kButtonFace)
        option->palette.setColor(QPalette::Text, legible(palette.color(QPalette::Mid), text, base, 2.4));
}
