#pragma once

#include <QTranslator>

// A translation catalogue that "translates" every text to its translation context and source
// text, "Context: Text", so a test sees which context a text was looked up in.
class TaggingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText,
                      const char* disambiguation = nullptr, int n = -1) const override;
    bool isEmpty() const override { return false; }
};
