#include "box_face.h"

#include "dimmed_colour.h"

#include <QApplication>
#include <QWidget>

void applyBoxFace(QWidget &part, QPalette::ColorRole role, BoxFace face) {
    const QPalette system = QApplication::palette();
    const QPalette::ColorRole source = face == BoxFace::kWindow ? QPalette::Base : QPalette::Button;
    QPalette own;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        own.setBrush(group, role, system.brush(QPalette::Active, source));
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
