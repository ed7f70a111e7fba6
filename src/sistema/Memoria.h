#pragma once

/// Blocks of up to some megabytes that are freed stay with the process for the next ones. Printing
/// asks for hundreds of such blocks one after the other, and getting each anew from the system,
/// page by page, takes as long as filling it. May be called again.
void TieneMemoriaLiberata();
