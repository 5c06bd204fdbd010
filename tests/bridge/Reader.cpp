#include "tests/bridge/Reader.h"

#include <functional>

using namespace rti1516e;

namespace net {

namespace {

std::size_t const recordSize = 32; // in front of copied bytes, in one allocation with them

struct Ended {
   Ending ending;
   std::string detail;
};

[[noreturn]] void end(Ending ending, std::string const& detail = "")
{
   throw Ended{ending, detail};
}

// The frame's bytes, in the order in which the library reads them. Each read gives the field as
// wire() has the value that comes of it.
class Reader {
public:
   Reader(std::string const& bytes, Time time) : _bytes(bytes), _time(time) {}

   std::string take(std::size_t size)
   {
      if (_bytes.size() - _position < size) {
         end(Ending::PAST_THE_END);
      }
      _position += size;
      return _bytes.substr(_position - size, size);
   }

   int number()
   {
      std::uint32_t value = 0;
      for (char const byte : take(4)) {
         value = value << 8 | static_cast<unsigned char>(byte);
      }
      return static_cast<int>(value);
   }

   std::string word()
   {
      return take(4);
   }

   // What does not fit into memory is noticed before its bytes are read.
   std::size_t size(std::size_t bytesEach, std::size_t more)
   {
      int const count = number();
      if (count < 0 || static_cast<std::size_t>(count) * bytesEach + more > allocationLimit) {
         end(Ending::EXCEPTION);
      }
      return static_cast<std::size_t>(count);
   }

   std::string text()
   {
      std::size_t const count = size(sizeof(wchar_t), sizeof(wchar_t));
      return integer(static_cast<std::int64_t>(count)).bytes + take(2 * count);
   }

   std::string block()
   {
      std::string const content = take(size(1, recordSize));
      return net::block(content).bytes;
   }

   // A count of 0 or below is none.
   std::string list(std::function<std::string()> const& element)
   {
      std::vector<Wire> all;
      for (int left = number(); left > 0; --left) {
         all.push_back(Wire{element(), 0});
      }
      return counted(all).bytes;
   }

   // Keys in the order of their bytes; of several values for a key the last.
   std::string map(
         std::function<std::string()> const& key, std::function<std::string()> const& value)
   {
      std::map<std::string, std::string> values;
      for (int left = number(); left > 0; --left) {
         std::string const at = key();
         values[at] = value();
      }
      std::vector<Wire> all;
      for (auto const& entry : values) {
         all.push_back(Wire{entry.first + entry.second, 0});
      }
      return counted(all).bytes;
   }

   std::string handles()
   {
      return map([this] { return word(); }, [] { return ""; });
   }

   std::string code(int first, int last, char const* decoder)
   {
      int const value = number();
      if (value < first || value > last) {
         end(Ending::ASSERTION, decoder);
      }
      return integer(value).bytes;
   }

   std::string logicalTime()
   {
      if (!hasHelper) {
         end(Ending::NULL_POINTER);
      }
      lacksTime = _time == Time::NONE;
      return lacksTime ? "" : take(8);
   }

   // Bytes 1 to 3 of the payload's size count as signed.
   std::string retraction()
   {
      std::string const id = word();
      std::string const size = word();
      signed char const* const bytes = reinterpret_cast<signed char const*>(size.data());
      long const payload = static_cast<unsigned char>(bytes[0]) * 0x1000000L | bytes[1] * 0x10000L
            | bytes[2] * 0x100L | bytes[3];
      if (payload < 0 || payload > static_cast<long>(allocationLimit)) {
         end(Ending::EXCEPTION);
      }
      return id + size + take(static_cast<std::size_t>(payload));
   }

   // Flags first, then what they announce. A reflection keeps the second flag to itself, a removal
   // has none.
   std::string record(std::string const& kind)
   {
      bool const hasFederate = number() != 0;
      bool const hasRegions = kind != "rem" && number() != 0;
      std::string const federate = hasFederate ? word() : integer(0).bytes;
      std::string const flag = wire(hasFederate).bytes;
      if (kind == "rem") {
         return flag + federate;
      }
      std::string const regions = hasRegions ? handles() : integer(0).bytes;
      return flag + wire(hasRegions && kind == "rec").bytes + federate + regions;
   }

   bool hasHelper = true;
   bool lacksTime = false;

private:
   std::string const& _bytes;
   Time const _time;
   std::size_t _position = 0;
};

typedef std::function<std::string(Reader&)> Read;

Read enumeration(int first, int last, char const* decoder)
{
   return [=](Reader& frame) { return frame.code(first, last, decoder); };
}

Read record(char const* kind)
{
   return [=](Reader& frame) { return frame.record(kind); };
}

Read statuses(int handlesEach, int last, char const* decoder)
{
   return [=](Reader& frame) {
      return frame.list([&] {
         std::string const federates = frame.take(4u * static_cast<unsigned>(handlesEach));
         return federates + frame.code(0, last, decoder);
      });
   };
}

// In the order of their characters, without the counts ahead.
std::string strings(Reader& frame)
{
   std::set<std::string> all;
   for (int left = frame.number(); left > 0; --left) {
      all.insert(frame.text().substr(4));
   }
   std::vector<Wire> texts;
   for (std::string const& characters : all) {
      texts.push_back(
            integer(static_cast<std::int64_t>(characters.size() / 2)) + Wire{characters, 0});
   }
   return counted(texts).bytes;
}

std::string values(Reader& frame)
{
   return frame.map([&] { return frame.word(); }, [&] { return frame.block(); });
}

std::string federations(Reader& frame)
{
   return frame.list([&] {
      std::string const name = frame.text();
      return name + frame.text();
   });
}

std::map<std::string, Read> const& readers()
{
   static Read const word = &Reader::word;
   static std::map<std::string, Read> const all{
         {"S", &Reader::text},
         {"SX", strings},
         {"BX", &Reader::block},
         {"OCH", word},
         {"ICH", word},
         {"OIH", word},
         {"AH", word},
         {"FH", word},
         {"AHS", &Reader::handles},
         {"FHS", &Reader::handles},
         {"AHVM", values},
         {"PHVM", values},
         {"LT", &Reader::logicalTime},
         {"MRH", &Reader::retraction},
         {"OT", enumeration(0, 1, "decodeOrderType")},
         {"TTH", enumeration(1, 2, "decodeTransportationType")},
         {"SPFR", enumeration(0, 1, "decodeSyncFailureReason")},
         {"SFR", enumeration(0, 5, "decodeSaveFailureReason")},
         {"RFR", enumeration(0, 4, "decodeRestoreFailureReason")},
         {"FHSSPX", statuses(1, 3, "decodeSaveStatus")},
         {"FRSX", statuses(2, 5, "decodeRestoreStatus")},
         {"FEIS", federations},
         {"FASRI-ref", record("ref")},
         {"FASRI-rec", record("rec")},
         {"FASRI-rem", record("rem")},
   };
   return all;
}

} // namespace

Prediction predict(std::string const& native, std::string const& frame, Time time, int handle)
{
   Reader reader(frame, time);
   Prediction prediction{Ending::DELIVERED, "", {}};
   try {
      if (reader.number() != 0x63626160) {
         end(Ending::ASSERTION, "preMagic == PRE_MAGIC");
      }
      int const selected = reader.number();
      if (selected < 0 || selected >= 4096 || (selected > 0 && selected < handle)) {
         end(Ending::ELSEWHERE);
      }
      reader.hasHelper = selected == handle;
      for (std::string const& code : codesOf(native)) {
         prediction.arguments.push_back(readers().at(code)(reader));
      }
      if (reader.number() != 0x59585756) {
         end(Ending::ASSERTION, "postMagic == POST_MAGIC");
      }
      if (!reader.hasHelper || reader.lacksTime) {
         end(Ending::NULL_POINTER);
      }
   } catch (Ended const& ended) {
      prediction = {ended.ending, ended.detail, {}};
   }
   return prediction;
}

} // namespace net
