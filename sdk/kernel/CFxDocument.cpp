#include "CFxDocument.h"

#include <utility>

CFxDocument::CFxDocument(int index, QString pathName)
    : m_index(index), m_pathName(std::move(pathName))
{}

CFxDocument::~CFxDocument() = default;
