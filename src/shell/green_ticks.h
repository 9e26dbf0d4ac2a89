#pragma once

class CommandStates;
class ErrorReport;
class FilterTabs;
class FormNodes;
class TierButtons;
class Transformer;

// The ticks of tiers, tree and filter tabs, and with them the states of the commands.
class GreenTicks {
  public:
    struct Parts {
        TierButtons &tiers;
        FormNodes &nodes;
        FilterTabs &filterTabs;
        CommandStates &commands;
    };
    GreenTicks(Transformer &transformer, const Parts &parts, ErrorReport &errors);
    void SetTierNodeGreenTick(bool HighlightForm);

  private:
    void tickTier();
    void tickNodes();

    Transformer &mTransformer;
    Parts mParts;
    ErrorReport &mErrors;
};
