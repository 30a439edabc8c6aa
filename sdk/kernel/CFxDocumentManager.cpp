#include "CFxDocumentManager.h"

CFxDocumentManager::CFxDocumentManager() = default;

CFxDocumentManager::~CFxDocumentManager() = default;
