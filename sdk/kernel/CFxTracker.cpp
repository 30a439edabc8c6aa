#include "CFxTracker.h"

CFxTracker::CFxTracker() = default;

CFxTracker::~CFxTracker() = default;

bool CFxTracker::CheckRegenAbort()
{
    return false;
}

CFxString CFxTracker::GetName() const
{
    return CFxString();
}

bool CFxTracker::IsEager() const
{
    return false;
}

void CFxTracker::DoAction() {}

void CFxTracker::OnMainSelectionSetChanged() {}
