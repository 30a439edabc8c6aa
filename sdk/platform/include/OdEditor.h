#pragma once

#include "TD_RootExport.h"

class OdEditorReactor;

// The editor, as a module reaches it through odedEditor(): the reactors that follow the
// user's work are attached and detached here. Reactors are lent, not owned: the editor holds a
// reference while one is attached and gives it back when it is removed.
class TD_ROOT_EXPORT OdEditor
{
public:
    OdEditor(const OdEditor&) = delete;
    OdEditor& operator=(const OdEditor&) = delete;

    virtual void addReactor(OdEditorReactor* reactor) = 0;
    virtual void removeReactor(OdEditorReactor* reactor) = 0;

protected:
    OdEditor();
    virtual ~OdEditor();
};

TD_ROOT_EXPORT OdEditor* odedEditor();
