#pragma once

#include "dictionary.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class FieldFacts;

// How the forms stand in the tree, over all models.
struct TreeForm {
    QString name;    // "usrctlPTT"
    QString caption; // "PTT"
    QString group;   // caption of the group; "" at the top level
    QString models;  // "Standard and Advanced"; "" for all
};
[[nodiscard]] std::vector<TreeForm> treeForms(const Dictionary &dictionary, const FieldFacts &facts);

// A form's title in the help: "Networks: Alerts", "Channels". Where it stands, for its page.
[[nodiscard]] QString titleOf(const TreeForm &form);
[[nodiscard]] QString whereOf(const TreeForm &form);

// The page "index.html": the hand-written pages, then the forms.
struct ContentsEntry {
    QString title;
    QString fileName;
};
[[nodiscard]] QString contentsPage(const std::vector<ContentsEntry> &pages, const std::vector<ContentsEntry> &forms);
