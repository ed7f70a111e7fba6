#pragma once

/// Makes Qt ask the sheet and its elements themselves what they are to a screen reader. Once is
/// enough, more often does nothing.
void InstallaFoglioAccessibile();
