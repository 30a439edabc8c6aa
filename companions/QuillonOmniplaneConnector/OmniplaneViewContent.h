#pragma once

class QWidget;

// What the collaboration view shows: the user's state on the Omniplane platform and the
// actions on it. Signing in reaches out to the platform's service; the actions on drawings
// wait until the user is signed in.
class OmniplaneViewContent
{
public:
    static QWidget* create();
};
