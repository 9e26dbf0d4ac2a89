#pragma once

class QHelpEvent;
class TDBGrid;

// The tip of the cell under the pointer: its text where the cell cuts it off, none where all of it is seen.
void FetchCellTips(const TDBGrid &table, const QHelpEvent &event);
