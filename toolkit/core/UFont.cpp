#include "UFont.h"

UFont::~UFont() = default;
