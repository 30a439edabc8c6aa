#pragma once

// The two settings that switch companions on and off. They are read anew at every call: an
// installer or an administrator may change them between two main windows.
class CompanionSettings
{
public:
    // The system-wide setting "premiumnetworkdisable" (group "Network" of Corvane/Quillon):
    // "yes", in any letter case and with blanks around it, switches off the companions that
    // need the network (the question view and the task pane). Anything else, or nothing, leaves
    // them on.
    static bool networkCompanionsDisabled();
    // The registry value "OmniplaneCSEnable" of the connectors' key: the collaboration-platform
    // connector is loaded only when it is true. Missing or unreadable counts as false.
    static bool collaborationEnabled();
};
