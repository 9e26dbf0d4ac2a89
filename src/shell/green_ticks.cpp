#include "green_ticks.h"

#include "command_states.h"
#include "common_error_handler.h"
#include "filter_tabs.h"
#include "form_nodes.h"
#include "tier_buttons.h"
#include "transformer.h"

GreenTicks::GreenTicks(Transformer &transformer, const Parts &parts, ErrorReport &errors)
    : mTransformer(transformer), mParts(parts), mErrors(errors) {}

void GreenTicks::tickTier() {
    const qint32 tier = mParts.tiers.IndexOfKey(mTransformer.GetCurrentTier());
    if (tier == 0 || mParts.tiers.Image(tier) == TickImage::Link)
        return;
    const bool dirty = mTransformer.GetDataIsDirty();
    mParts.tiers.SetImage(tier, dirty ? TickImage::Green : TickImage::White);
    if (!dirty)
        mParts.filterTabs.SetImages(TickImage::White);
}

void GreenTicks::tickNodes() {
    for (qint32 node = 1; node <= mParts.nodes.Count(); ++node) {
        if (mParts.nodes.Image(node) == TickImage::Link)
            continue;
        const bool hasData = mTransformer.GetTreeNodeHasData(mParts.nodes.Key(node));
        mParts.nodes.SetImage(node, hasData ? TickImage::Green : TickImage::White);
    }
}

void GreenTicks::SetTierNodeGreenTick(bool HighlightForm) try {
    tickTier();
    if (HighlightForm)
        tickNodes();
    mParts.commands.EnableNew(!mTransformer.GetDataIsDirty() || mTransformer.GetNewAllowed());
    mParts.commands.EnableRevertToSaved(!mTransformer.GetFileName().isEmpty());
    mParts.commands.EnableFormCommands(false);
    if (mTransformer.GetSaveAllowed() == 1)
        mParts.commands.EnableFormCommands(true);
}
ERROR_TAIL()
