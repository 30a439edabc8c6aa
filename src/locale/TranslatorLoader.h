#pragma once

// The module's language step when the host's main window is made: the language of the host's
// setting becomes the process's default locale, and its translators are installed from the
// host's messages folder. The module core makes one on its stack for each main window; the
// translators outlive it.
class TranslatorLoader
{
public:
    // `requestedId` 0 asks for the system's language, any other value for the host's
    // setting; the host's setting governs in either case.
    void load(int requestedId) const;
};
