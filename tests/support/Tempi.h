#pragma once

#include <ctime>

/// Limits of time in tests hold for the program as it is shipped; a build without the optimiser, or
/// one that checks every access, is slower by about this much.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr int Lentezza = 10;
#elif !defined(NDEBUG)
inline constexpr int Lentezza = 3;
#else
inline constexpr int Lentezza = 1;
#endif

/// Processor time of this process since it was made, in milliseconds: what else the machine does
/// meanwhile does not count, and neither does waiting.
class TempoDiLavoro
{
public:
    double MilliSecondi() const
    {
        return 1000.0 * static_cast<double>(std::clock() - inizio_) / CLOCKS_PER_SEC;
    }
    /// True while less than the given milliseconds, widened by Lentezza, have been used.
    bool Entro(double millisecondi) const { return MilliSecondi() < millisecondi * Lentezza; }

private:
    std::clock_t inizio_ = std::clock();
};
