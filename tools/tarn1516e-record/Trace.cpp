// Reads a recording event by event, so that no more than one is kept as JSON.
#include "tools/tarn1516e-record/Trace.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <nlohmann/json.hpp>

namespace record {

namespace {

using json = nlohmann::ordered_json; // arguments stay in their order

std::size_t const longestArguments = 160;

// The number in angle brackets at the end of a text: of a handle or of a time.
std::string number(std::string const& text)
{
   std::size_t const open = text.rfind('<');
   return open == std::string::npos || text.back() != '>'
         ? ""
         : text.substr(open + 1, text.size() - open - 2);
}

std::string withoutNumber(std::string const& text)
{
   return number(text).empty() ? text : text.substr(0, text.rfind('<'));
}

std::string text(json const& value)
{
   return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string textOf(json const& object, char const* name)
{
   auto const found = object.find(name);
   return found == object.end() ? "" : text(*found);
}

class Reader {
public:
   explicit Reader(Trace& trace) : _trace(trace) {}

   void take(json const& event);
   void finish();

private:
   void takeMetadata(json const& event);
   std::size_t threadOf(json const& event);
   void begin(json const& event, std::size_t thread);
   void end(json const& event, std::size_t thread);
   void learnFrom(Call const& call, json const& arguments);
   void count(Call const& call, json const& arguments);

   Trace& _trace;
   bool _isRecording = false;
   std::map<long, std::size_t> _threads;                        // by number
   std::vector<std::vector<std::size_t>> _open;                 // by thread
   std::map<std::size_t, json> _openArguments;                  // of calls that may tell a class
   std::map<std::pair<int, std::string>, std::string> _classes; // by ambassador and instance
};

void Reader::take(json const& event)
{
   if (!_isRecording) {
      if (textOf(event, "name") != "tarn1516e-record") {
         throw BadTrace("is no recording of tarn1516e-record");
      }
      _isRecording = true;
      return;
   }
   std::string const phase = event.at("ph").get<std::string>();
   std::size_t const thread = threadOf(event);
   if (phase == "M") {
      _trace.threads[thread].name = event.at("args").at("name").get<std::string>() + " "
            + std::to_string(_trace.threads[thread].number);
   } else if (phase == "B") {
      begin(event, thread);
   } else if (phase == "E") {
      end(event, thread);
   }
}

std::size_t Reader::threadOf(json const& event)
{
   long const tid = event.at("tid").get<long>();
   auto const found = _threads.find(tid);
   if (found != _threads.end()) {
      return found->second;
   }
   _threads[tid] = _trace.threads.size();
   _trace.threads.push_back(Thread{tid, ""});
   _open.emplace_back();
   return _trace.threads.size() - 1;
}

void Reader::begin(json const& event, std::size_t thread)
{
   json const& arguments = event.at("args");
   Call call;
   call.name = event.at("name").get<std::string>();
   std::string const category = event.at("cat").get<std::string>();
   call.category = category == "service" ? Category::service
         : category == "callback"        ? Category::callback
                                         : Category::start;
   call.thread = thread;
   call.ambassador = arguments.at("rti").get<int>();
   call.begin = event.at("ts").get<double>();
   if (!_open[thread].empty()) {
      call.parent = _open[thread].back();
      call.depth = _open[thread].size();
   }
   std::string const time = textOf(arguments, "theTime");
   if (!time.empty()) {
      char* end = nullptr;
      std::string const digits = number(time).empty() ? time : number(time);
      call.time = std::strtod(digits.c_str(), &end);
      call.hasTime = end != digits.c_str() && *end == '\0';
   }
   for (auto const& argument : arguments.items()) {
      if (argument.key() != "rti") {
         call.arguments += (call.arguments.empty() ? "" : ", ") + text(argument.value());
      }
   }
   if (call.arguments.size() > longestArguments) {
      std::size_t cut = longestArguments;
      while ((call.arguments[cut] & 0xc0) == 0x80) { // inside a character
         --cut;
      }
      call.arguments = call.arguments.substr(0, cut) + "\xe2\x80\xa6";
   }
   learnFrom(call, arguments);
   count(call, arguments);
   _open[thread].push_back(_trace.calls.size());
   _trace.calls.push_back(call);
}

// The ambassador's name, and of which class an object is.
void Reader::learnFrom(Call const& call, json const& arguments)
{
   if (call.name == "joinFederationExecution") {
      std::string const name = textOf(arguments, "federateName");
      _trace.ambassadors[call.ambassador] = name.empty() ? textOf(arguments, "federateType") : name;
   } else if (call.name == "discoverObjectInstance") {
      _classes[{call.ambassador, number(textOf(arguments, "theObject"))}] =
            withoutNumber(textOf(arguments, "theClass"));
   } else if (call.name.compare(0, 22, "registerObjectInstance") == 0) {
      _openArguments[_trace.calls.size()] = arguments;
   }
   _trace.ambassadors.emplace(call.ambassador, "");
}

void Reader::count(Call const& call, json const& arguments)
{
   bool const isSent = call.category == Category::service;
   auto const values = arguments.find(
         arguments.count("theAttributeValues") != 0 ? "theAttributeValues" : "theParameterValues");
   if (values == arguments.end()) {
      return;
   }
   std::map<std::string, Flow>* flows;
   if (arguments.count("theInteraction") != 0) {
      flows = &_trace.interactions[withoutNumber(textOf(arguments, "theInteraction"))];
   } else {
      auto const known = _classes.find({call.ambassador, number(textOf(arguments, "theObject"))});
      flows = &_trace.objects[known == _classes.end() ? "(class unknown)" : known->second];
   }
   for (auto const& value : values->items()) {
      Flow& flow = (*flows)[withoutNumber(value.key())];
      std::size_t const bytes = std::strtoul(text(value.value()).c_str(), nullptr, 10);
      ++(isSent ? flow.sent : flow.received);
      (isSent ? flow.bytesSent : flow.bytesReceived) += bytes;
   }
}

void Reader::end(json const& event, std::size_t thread)
{
   if (_open[thread].empty()) {
      throw BadTrace("has a call that ends before it begins");
   }
   std::size_t const index = _open[thread].back();
   _open[thread].pop_back();
   Call& call = _trace.calls[index];
   call.end = event.at("ts").get<double>();
   call.hasEnded = true;
   _trace.last = std::max(_trace.last, call.end);
   if (call.parent != Call::none) {
      _trace.calls[call.parent].inner += call.duration();
   }
   auto const outcome = event.find("args");
   if (outcome != event.end()) {
      call.exception = textOf(*outcome, "exception");
      call.text = textOf(*outcome, "text");
   }
   auto const registered = _openArguments.find(index);
   if (registered != _openArguments.end()) {
      if (outcome != event.end()) {
         _classes[{call.ambassador, number(textOf(*outcome, "result"))}] =
               withoutNumber(textOf(registered->second, "theClass"));
      }
      _openArguments.erase(registered);
   }
}

// What has not ended lasts to the end.
void Reader::finish()
{
   if (!_isRecording) {
      throw BadTrace("is no recording of tarn1516e-record");
   }
   for (Call const& call : _trace.calls) {
      _trace.last = std::max(_trace.last, call.begin);
   }
   bool isFirst = true;
   for (auto call = _trace.calls.rbegin(); call != _trace.calls.rend(); ++call) {
      if (!call->hasEnded) {
         call->end = _trace.last;
         if (call->parent != Call::none) {
            _trace.calls[call->parent].inner += call->duration();
         }
      }
      if (call->category != Category::start) {
         _trace.first = isFirst ? call->begin : std::min(_trace.first, call->begin);
         isFirst = false;
      }
   }
}

} // namespace

Trace::Trace(std::string const& path)
{
   std::ifstream file(path);
   if (!file || file.peek() == std::ifstream::traits_type::eof()) {
      throw BadTrace(file ? "is empty: the program made no ambassador" : std::strerror(errno));
   }
   Reader reader(*this);
   try {
      auto const take = [&](int depth, json::parse_event_t what, json& parsed) {
         if (depth == 1 && what == json::parse_event_t::object_end) {
            reader.take(parsed);
            return false; // it is done with
         }
         return true;
      };
      if (!json::parse(file, take).is_array()) {
         throw BadTrace("is no recording of tarn1516e-record");
      }
   } catch (json::parse_error const& e) {
      broken = "breaks off or is damaged at byte " + std::to_string(e.byte);
   } catch (json::exception const&) {
      throw BadTrace("has events that tarn1516e-record does not write");
   }
   reader.finish();
}

} // namespace record
