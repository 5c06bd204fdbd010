// What the page's pictures share: text for HTML, a plot's area with its axes, colours.
#ifndef tarn1516e_record_Drawing_h
#define tarn1516e_record_Drawing_h

#include <ostream>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace record {

std::string escaped(std::string const& text);

// In hundredths at the finest, since files grow with digits.
std::string pixels(double value);

// Round values within a range, at most `most` of them.
std::vector<double> ticks(double low, double high, int most);

// Numbers with as many decimals as their distance asks for.
std::string tickText(double value, double step);

// A plot of wall time, from left to right, against something else.
class Plot {
public:
   // Times are microseconds. The picture has room for labels left of the plot.
   Plot(std::ostream& out, double height, double wall);
   ~Plot();

   static int const left = 130;
   static int const width = 1010;

   void setRange(double low, double high);

   double x(double time) const;
   double y(double value) const; // kept inside the plot

   double height() const
   {
      return _height;
   }

   // Labels and lines for the wall time, and for the range if there is one.
   void drawTimes();
   void drawRange(std::string const& label);

   // A sign and what it stands for, from left to right above the plot.
   void legend(std::string const& sign, std::string const& text);

   // Whether no mark of the kind has been drawn so near yet; many in one place are one.
   bool isFree(char kind, double x, double y);

   std::ostream& out;

private:
   Plot(Plot const&) = delete;
   Plot& operator=(Plot const&) = delete;

   double _height;
   double _wall;
   double _low = 0;
   double _high = 1;
   double _legend = left;
   std::set<std::tuple<char, int, int>> _taken;
};

} // namespace record

#endif
