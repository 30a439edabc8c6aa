#pragma once

#include <QString>

#include <CFxCommand.h>

// A command of the sample: its group, its names ("NAME" and "_NAME"), and the prompts and
// messages through which it talks with the user on the command line.
class SampleCommand : public CFxCommand
{
public:
    explicit SampleCommand(const wchar_t* localName);

    const OdString groupName() const override;
    const OdString globalName() const override;
    const OdString localName() const override;

protected:
    // The user's answer to `prompt`; empty when the user gave none.
    static QString askString(OdEdCommandContext* context, const wchar_t* prompt);
    // The user's whole-number answer to `prompt` (`defaultValue` when none); false when the
    // answer is not a whole number.
    static bool askInt(OdEdCommandContext* context, const wchar_t* prompt, int defaultValue,
                       int& value);
    // Tells the user `text`, after the command's name.
    void tell(OdEdCommandContext* context, const QString& text) const;

private:
    // A copy: the host may keep a name after this module is gone, so none may point into the
    // module's library.
    OdString m_localName;
};
