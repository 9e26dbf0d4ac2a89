# The tables of the demonstration fleet in the order of their import, each as records=table: what is referred to comes
# before what refers to it.
set(KX_DEMO_TABLES
    SignalSystemId_q7r=selcall_systems.csv
    BurstSequence1_q7r=caller_ids.csv
    BurstSequence2_q7r=tx_calls.csv
    BurstSequence3_q7r=statuses.csv
    BurstSequence5_q7r=lead_in_tones.csv
    ControlStatusValue=control_statuses.csv
    DTMFNetworkSigSystemID=dtmf_systems.csv
    DTMFPresetSequence=dtmf_presets.csv
    NetworkID=networks.csv
    ChannelID_q7r=channels.csv
    GroupID_q7r=scan_groups.csv
    FilteredScanGroupChannelMemberID=scan_group_members.csv
    GroupID_q7r=scan_group_channels.csv
    DigitalIOPin=digital_pins.csv)
set(KX_DEMO_SETTINGS settings.txt)
