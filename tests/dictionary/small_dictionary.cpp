#include "small_dictionary.h"

namespace {

const char kTiers[] = R"({
  "tiers": [ { "key": "Plain", "caption": "Plain radio" }, { "key": "Full", "caption": "Full radio" } ],
  "versions": [ { "level": 1, "name": "1.00" }, { "level": 2, "name": "2.00" } ],
  "tree": [ { "form": "frmRadio", "caption": "Radio" }, { "form": "frmSystem", "caption": "Systems", "tiers": ["Full"] } ] })";

const char kStructures[] = R"({ "layout": 7, "structures": [
  { "name": "Radio", "recordBytes": 16 },
  { "name": "Network", "guide": "NetworkID", "position": "CurrentNetwork", "least": 1, "most": 4, "recordBytes": 8,
    "commands": ["add", "delete"], "navigatorLabel": "Network", "navigatorRecords": "Networks" },
  { "name": "Channel", "guide": "ChannelID", "position": "CurrentChannel", "grids": ["Channels"], "least": 1, "new": 2,
    "most": { "Plain": 4, "Full": 100 }, "recordBytes": 16, "navigatorLabel": "Channel", "navigatorRecords": "Channels" },
  { "name": "Group", "guide": "GroupID", "position": "CurrentGroup", "most": 3, "recordBytes": 8 },
  { "name": "Member", "guide": "MemberChannel", "grids": ["Members"], "parent": "Group", "most": 5, "recordBytes": 2 },
  { "name": "System", "guide": "SystemNr", "position": "CurrentSystem", "most": { "Plain": 0, "Full": 3 }, "recordBytes": 4 },
  { "name": "Slot", "guide": "SlotText", "position": "CurrentSlot", "parent": "System", "perParent": 2, "recordBytes": 8 },
  { "name": "Burst", "guide": "BurstNr", "grids": ["Bursts"], "parent": "System", "least": 3, "most": 3, "fixed": true,
    "recordBytes": 4 } ] })";

const char kLists[] =
    R"({ "POWER": { "source": "test", "items": ["Low", "High", { "text": "Turbo", "level": 2, "tiers": ["Full"] }] } })";

const char kRadio[] = R"({ "structure": "Radio", "form": "frmRadio", "fields": [
  { "id": "Band", "label": "Band", "kind": "list", "help": "Band.", "at": [0, 1], "default": "High band", "items": ["Low band", "High band"] },
  { "id": "Owner", "label": "Owner", "kind": "text", "help": "Owner.", "at": [1, 6], "default": "", "mask": "ABCabc XYZ1", "length": 6 },
  { "id": "Beep", "label": "Beep", "kind": "flag", "help": "Beep.", "at": [7, 0, 0], "default": 1 },
  { "id": "Start", "label": "Start", "kind": "reference", "help": "Start.", "at": [8, 4], "default": "None", "none": true,
    "to": ["Channel", "Group"], "texts": { "Channel": "Channel %1", "Group": "Group %1" } },
  { "id": "Offset", "label": "Offset", "kind": "number", "help": "Offset.", "at": [12, 2], "default": 0, "min": -10.5, "max": 10.5,
    "step": 0.5, "decimals": 1, "unit": "dB" },
  { "id": "Delay", "label": "Delay", "kind": "number", "help": "Delay.", "at": [14, 2], "default": 20, "min": 20, "max": 500, "step": 20,
    "unit": "ms", "level": 2, "enabledWhen": { "all": [ { "field": "Beep", "is": [1] }, { "not": { "field": "Owner", "empty": true } } ] } } ] })";

const char kNetworks[] = R"({ "structure": "Network", "form": "frmNetwork", "fields": [
  { "id": "NetworkID", "label": "Network ID", "kind": "recordNumber", "help": "Number." },
  { "id": "Calls", "label": "Calls", "kind": "list", "help": "Calls.", "at": [0, 1], "default": "None", "items": ["None", "Selcall"] } ] })";

const char kChannels[] = R"({ "structure": "Channel", "form": "frmChannel", "fields": [
  { "id": "ChannelID", "label": "ID", "kind": "identity", "help": "ID.", "at": [0, 2], "default": "next free", "identityMin": 1, "identityMax": 9 },
  { "id": "Rx", "label": "Rx Frequency", "kind": "number", "help": "Rx.", "at": [2, 4], "default": 160, "min": 40, "max": 174, "decimals": 6,
    "unit": "MHz", "rasters": [2500, 6250], "limitsBy": { "field": "Band", "limits": [[40, 50], [136, 174]], "defaults": [45, 160] } },
  { "id": "Tx", "label": "Tx Frequency", "kind": "number", "help": "Tx.", "at": [6, 4], "default": 160, "min": 40, "max": 174, "decimals": 6,
    "unit": "MHz", "rasters": [2500, 6250], "limitsBy": { "field": "Band", "limits": [[40, 50], [136, 174]], "defaults": [45, 160] }, "follows": "Rx" },
  { "id": "Network", "label": "Network", "kind": "reference", "help": "Network.", "at": [10, 1], "default": 1, "to": "Network" },
  { "id": "Power", "label": "Power", "kind": "list", "help": "Power.", "at": [11, 1], "default": "Low", "list": "POWER" },
  { "id": "Boost", "label": "Boost", "kind": "number", "help": "Boost.", "at": [12, 1], "default": 3, "min": 0, "max": 9, "resetWhenChanges": "Power",
    "access": 80, "enabledWhen": { "field": "Calls", "via": "Network", "is": ["Selcall"] } } ] })";

const char kGroups[] = R"({ "structure": "Group", "form": "frmGroup", "fields": [
  { "id": "GroupID", "label": "Group ID", "kind": "identity", "help": "ID.", "at": [0, 2], "identityMin": 1, "identityMax": 999 },
  { "id": "GroupName", "label": "Name", "kind": "text", "help": "Name.", "at": [2, 4], "length": 4,
    "enabledWhen": { "records": "Member", "above": 1 } },
  { "id": "GroupTone", "label": "Tone", "kind": "flag", "help": "Tone.", "at": [6, 1], "default": 0,
    "enabledWhen": { "some": "Network", "where": { "field": "Calls", "isNot": ["None"] } } } ] })";

const char kMembers[] = R"({ "structure": "Member", "form": "frmGroup", "fields": [
  { "id": "MemberChannel", "label": "Channel", "kind": "reference", "help": "Channel.", "at": [0, 2], "default": "None", "none": true, "to": "Channel",
    "whenTargetGoes": "deleteRecord", "enabledWhen": { "field": "GroupTone", "is": [0] } } ] })";

const char kSystems[] = R"({ "structure": "System", "form": "frmSystem", "fields": [
  { "id": "SystemNr", "label": "System", "kind": "recordNumber", "help": "Number." },
  { "id": "Favourite", "label": "Favourite", "kind": "reference", "help": "Slot.", "at": [0, 2], "default": "None", "none": true, "to": "Slot" } ] })";

const char kSlots[] = R"({ "structure": "Slot", "form": "frmSystem", "fields": [
  { "id": "SlotText", "label": "Text", "kind": "text", "help": "Text.", "at": [0, 8], "length": 8 } ] })";

const char kBursts[] = R"({ "structure": "Burst", "form": "frmSystem", "fields": [
  { "id": "BurstNr", "label": "Row", "kind": "recordNumber", "help": "Row.", "items": ["First", "Second", "Third"] },
  { "id": "BurstTone", "label": "Tone", "kind": "choice", "help": "Tone.", "at": [0, 1], "default": "A",
    "items": ["A", { "text": "B", "value": 7 }] } ] })";

} // namespace

std::vector<DictionaryFile> SmallDictionary::files() {
    const std::pair<const char *, const char *> table[] = {
        {"tiers.json", kTiers},   {"structures.json", kStructures}, {"lists.json", kLists},
        {"radio.json", kRadio},   {"networks.json", kNetworks},     {"channels.json", kChannels},
        {"groups.json", kGroups}, {"members.json", kMembers},       {"systems.json", kSystems},
        {"slots.json", kSlots},   {"bursts.json", kBursts}};
    std::vector<DictionaryFile> files;
    for (const auto &[name, text] : table)
        files.push_back({QString::fromLatin1(name), QByteArray(text)});
    return files;
}

std::vector<DictionaryFile> SmallDictionary::filesWith(const QString &file, const QByteArray &from,
                                                       const QByteArray &to) {
    std::vector<DictionaryFile> result = files();
    for (DictionaryFile &each : result) {
        if (each.name != file)
            continue;
        const qsizetype place = each.text.indexOf(from);
        if (place < 0)
            return {};
        each.text.replace(place, from.size(), to);
    }
    return result;
}

std::unique_ptr<const Dictionary> SmallDictionary::make() { return DictionaryLoader::load(files()); }
