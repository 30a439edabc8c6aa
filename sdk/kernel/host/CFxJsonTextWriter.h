#pragma once

#include "FxKernelExport.h"

#include <QByteArray>
#include <QString>

#include <vector>

// Writes JSON as text while it is walked, byte for byte as QJsonDocument::toJson writes the same
// document, compact or indented, but without building it first and without recursion: its cost
// grows with the text, however deep the document nests. The caller writes an object's keys in
// the order QJsonObject keeps them (sorted).
class FX_KERNEL_EXPORT CFxJsonTextWriter
{
public:
    // Indented text stops indenting deeper than this many levels: a document nested thousands
    // deep would otherwise grow with the square of its depth. Models of the host nest about a
    // dozen levels, and are written as Qt writes them.
    static constexpr std::size_t kMaxIndentLevel = 64;

    explicit CFxJsonTextWriter(bool compact);

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    // The next member's key (plain ASCII), in an object.
    void key(const char* name);
    void value(const QString& text);
    void value(bool flag);
    void value(int number);
    void null();

    // The text written: a whole document once the outermost object or array is ended.
    QByteArray take();

private:
    // Starts a value: in an array, after the separator and indentation of an element.
    void startValue();
    void separate();
    void indent(std::size_t level);
    void escape(const QString& text);

    bool m_compact;
    // How many members or elements each open object or array has so far.
    std::vector<int> m_counts;
    // A key was written and its value is next.
    bool m_keyed = false;
    QByteArray m_text;
};
