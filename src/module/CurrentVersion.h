#pragma once

#include <QString>

// The host's product version as the crash-report companion records it: the first, second
// and fourth of its four numbers, joined by dots ("2017.0.1234").
QString currentVersionString();
