#include "SampleEditorReactor.h"

#include "SampleRibbon.h"

SampleEditorReactor::SampleEditorReactor(SampleRibbon& ribbon) : m_ribbon(ribbon) {}

void SampleEditorReactor::mainFrameCreated(QWidget*)
{
    m_ribbon.loadOwnButtons();
}
