#include "ClockTime.h"

#include <cmath>
#include <iomanip>
#include <sstream>

std::wstring ClockTime::toString() const
{
   long const minutes = std::lround(getTime() * 60.0);
   std::wostringstream text;
   text << std::setfill(L'0') << std::setw(2) << minutes / 60 << L':' << std::setw(2)
        << minutes % 60;
   return text.str();
}
