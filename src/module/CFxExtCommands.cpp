#include "CFxExtCommands.h"

CFxExtCommands::CFxExtCommands() = default;

CFxExtCommands::~CFxExtCommands() = default;
