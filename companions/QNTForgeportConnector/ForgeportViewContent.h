#pragma once

class QWidget;

// What the online connector's view shows: the connector's name and what its XML import does.
// The import itself runs on the Forgeport service, which the reference connector does not reach.
class ForgeportViewContent
{
public:
    static QWidget* create();
};
