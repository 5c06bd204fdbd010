// Axes, ticks and texts of the pictures.
#include "tools/tarn1516e-record/Drawing.h"

#include "tools/tarn1516e-record/Report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace record {

namespace {

double const top = 26;    // for the legend
double const bottom = 24; // for the times
int const right = 20;

} // namespace

std::string escaped(std::string const& text)
{
   std::string result;
   for (char const c : text) {
      switch (c) {
      case '&':
         result += "&amp;";
         break;
      case '<':
         result += "&lt;";
         break;
      case '>':
         result += "&gt;";
         break;
      case '"':
         result += "&quot;";
         break;
      default:
         result += c;
      }
   }
   return result;
}

std::string pixels(double value)
{
   char text[40];
   int const size = std::snprintf(text, sizeof text, "%.2f", value);
   std::string result(text, static_cast<std::size_t>(size));
   result.erase(result.find_last_not_of('0') + 1);
   if (result.back() == '.') {
      result.pop_back();
   }
   return result;
}

std::vector<double> ticks(double low, double high, int most)
{
   double const raw = std::max((high - low) / most, 1e-9);
   double step = std::pow(10, std::floor(std::log10(raw)));
   for (double const factor : {2.0, 2.5, 2.0}) { // 2, 5, 10
      if (step < raw) {
         step *= factor;
      }
   }
   std::vector<double> result;
   for (double i = std::ceil(low / step - 1e-9); i * step <= high + step * 1e-9; ++i) {
      result.push_back(i * step);
   }
   return result;
}

std::string tickText(double value, double step)
{
   int const decimals =
         std::max(0, static_cast<int>(std::ceil(-std::log10(std::max(step, 1e-9)) - 1e-9)));
   char text[60];
   std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(value) < step / 2 ? 0.0 : value);
   return text;
}

Plot::Plot(std::ostream& stream, double height, double wall)
      : out(stream),
        _height(height),
        _wall(std::max(wall, 1e-3))
{
   double const whole = top + height + bottom;
   out << "<svg viewBox=\"0 0 " << left + width + right << ' ' << pixels(whole) << "\" width=\""
       << left + width + right << "\" height=\"" << pixels(whole) << "\"><rect class=\"plot\" x=\""
       << left << "\" y=\"" << top << "\" width=\"" << width << "\" height=\"" << pixels(height)
       << "\"/>\n";
}

Plot::~Plot()
{
   out << "</svg>\n";
}

void Plot::setRange(double low, double high)
{
   double const margin = high > low ? (high - low) * 0.06 : 1;
   _low = low - (low == 0 ? 0 : margin);
   _high = high + margin;
}

double Plot::x(double time) const
{
   return left + width * std::min(std::max(time / _wall, 0.0), 1.0);
}

double Plot::y(double value) const
{
   double const share = (value - _low) / (_high - _low);
   return top + _height * (1 - std::min(std::max(share, 0.0), 1.0));
}

void Plot::drawTimes()
{
   double unit = 1;
   char const* name = " us";
   if (_wall >= 2e6) {
      unit = 1e6;
      name = " s";
   } else if (_wall >= 2e3) {
      unit = 1e3;
      name = " ms";
   }
   std::vector<double> const values = ticks(0, _wall / unit, 10);
   double const step = values.size() > 1 ? values[1] - values[0] : 1;
   for (double const value : values) {
      double const at = x(value * unit);
      out << "<path class=\"grid\" d=\"M" << pixels(at) << ' ' << top << "v" << pixels(_height)
          << "\"/><text class=\"middle\" x=\"" << pixels(at) << "\" y=\""
          << pixels(top + _height + 16) << "\">" << tickText(value, step) << name << "</text>\n";
   }
}

void Plot::drawRange(std::string const& label)
{
   std::vector<double> const values =
         ticks(_low, _high, std::max(2, static_cast<int>(_height) / 30));
   double const step = values.size() > 1 ? values[1] - values[0] : 1;
   for (double const value : values) {
      out << "<path class=\"grid\" d=\"M" << left << ' ' << pixels(y(value)) << "h" << width
          << "\"/><text class=\"end\" x=\"" << left - 6 << "\" y=\"" << pixels(y(value) + 4)
          << "\">" << tickText(value, step) << "</text>\n";
   }
   out << "<text x=\"0\" y=\"14\">" << escaped(label) << "</text>\n";
}

void Plot::legend(std::string const& sign, std::string const& text)
{
   out << "<g transform=\"translate(" << pixels(_legend) << " 12)\">" << sign
       << "<text x=\"16\" y=\"4\">" << escaped(text) << "</text></g>\n";
   _legend += 34 + 7.0 * static_cast<double>(text.size());
}

bool Plot::isFree(char kind, double x, double y)
{
   return _taken.emplace(kind, static_cast<int>(x / 4), static_cast<int>(y / 4)).second;
}

} // namespace record
