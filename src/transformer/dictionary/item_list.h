#pragma once

#include "field_definition.h"
#include "json_reader.h"

// Items of a list or choice as they stand in a file, be it in a field or under a name of their own.
struct ItemList {
    std::vector<ListItem> items;
    bool haveValues = false; // a stored value is not its item's place
    QString repeatedText;    // a text that stands for several values; "" when each stands for one
};
