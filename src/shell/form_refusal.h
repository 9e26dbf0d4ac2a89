#pragma once

#include <QString>

class FormNodes;
class Translation;

// Why a form of the tree does not open.
struct FormRefusal {
    QString prompt;     // untranslated
    QString parameters; // joined by "|"
    // For a form that this program cannot build: one of its controls comes with later work.
    [[nodiscard]] static FormRefusal notBuilt(const FormNodes &nodes, qint32 node);
    // For a node that is unavailable.
    [[nodiscard]] static FormRefusal of(const FormNodes &nodes, qint32 node, const Translation &translation);
};
