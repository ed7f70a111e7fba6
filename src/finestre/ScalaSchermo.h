#pragma once

#include <QByteArray>

/// Qt places windows at any scale but paints with no less than one pixel to the unit: on a screen
/// scaled below that, controls are smaller than what is painted of them and most of it is lost.
/// While this object lives, the application object that is made has a pixel to the unit on every
/// screen. To be made while another one exists, which is ended before; the environment that
/// programs started later inherit is left as it was.
class AlmenoUnPixel
{
public:
    AlmenoUnPixel();
    ~AlmenoUnPixel();
    AlmenoUnPixel(const AlmenoUnPixel &) = delete;
    AlmenoUnPixel &operator=(const AlmenoUnPixel &) = delete;

    /// False when the application object that exists has it already.
    bool Occorre() const { return occorre_; }

private:
    QByteArray prima_;
    bool impostata_ = false; // the variable was set
    bool occorre_ = false;
};
