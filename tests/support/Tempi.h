#pragma once

#include <QElapsedTimer>

#include <algorithm>

/// Limits of time in tests hold for the program as it is shipped; a build without the optimiser, or
/// one that checks every access, is slower by about this much.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr int Lentezza = 10;
#elif !defined(NDEBUG)
inline constexpr int Lentezza = 3;
#else
inline constexpr int Lentezza = 1;
#endif

/// The time that this process works since the object was made: what else the machine does meanwhile
/// does not count.
class TempoDiLavoro
{
public:
    TempoDiLavoro() { orologio_.start(); }

    /// Processor time.
    double MilliSecondi() const { return Processore() - inizio_; }
    /// True while less than the given milliseconds, widened by Lentezza, have been used, and no
    /// more than five times as long, or five seconds, has passed with waiting: a hang is none
    /// either when the processor rests.
    bool Entro(double millisecondi) const
    {
        constexpr double Attesa = 5;
        const double passati = static_cast<double>(orologio_.elapsed());
        return MilliSecondi() < millisecondi * Lentezza &&
               passati < std::max(Attesa * millisecondi, Attesa * 1000) * Lentezza;
    }

private:
    /// What the process has used since it began, ms.
    static double Processore();

    QElapsedTimer orologio_;
    double inizio_ = Processore();
};
