// Pictures of windows, one below the other, in a bitmap file.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace gallery {

class Shot {
public:
    // Adds what the screen shows of the window, once it is painted.
    void Add(HWND window);

    // Writes the file; false when there is nothing to write or no way to write it.
    bool Write(const std::string& file) const;

private:
    int width_ = 0;
    std::vector<RGBTRIPLE> pixels_; // rows from the top, width_ pixels each
};

} // namespace gallery
