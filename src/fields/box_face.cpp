#include "box_face.h"

#include "dimmed_colour.h"

#include <QApplication>
#include <QWidget>

namespace {
constexpr QColor kAlarm(255, 0, 0);
constexpr QColor kOnAlarm(0, 0, 0); // reads best on red, also on a dark desktop

QBrush brushOf(BoxFace face, const QPalette &system) {
    if (face == BoxFace::kAlarm)
        return kAlarm;
    return system.brush(QPalette::Active, face == BoxFace::kWindow ? QPalette::Base : QPalette::Button);
}
} // namespace

void applyBoxFace(QWidget &part, QPalette::ColorRole role, BoxFace face) {
    const QPalette system = QApplication::palette();
    const QBrush behind = brushOf(face, system);
    QPalette own;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        own.setBrush(group, role, behind);
    if (face == BoxFace::kAlarm) {
        own.setColor(QPalette::Active, QPalette::Text, kOnAlarm);
        own.setColor(QPalette::Inactive, QPalette::Text, kOnAlarm);
    }
    // What cannot be edited is still read.
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        own.setBrush(QPalette::Disabled, text, dimmedTextColour(system));
    const QPalette present = part.palette();
    const bool same =
        present.brush(QPalette::Active, role) == own.brush(QPalette::Active, role) &&
        present.brush(QPalette::Disabled, QPalette::Text) == own.brush(QPalette::Disabled, QPalette::Text);
    if (!same)
        part.setPalette(own);
}
