#include "calls/filter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "calls/words.h"
#include "decode/message_text.h"
#include "text/hex.h"
#include "text/names.h"
#include "text/time_text.h"

namespace {

constexpr int64_t kDay = 86'400 * kSecond;

char Lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

// Ignores case.
bool Contains(std::string_view text, std::string_view part) {
  const auto equal = [](char a, char b) { return Lower(a) == Lower(b); };
  return std::search(text.begin(), text.end(), part.begin(), part.end(), equal) != text.end();
}

bool StartsWith(std::string_view text, std::string_view part) { return Contains(text.substr(0, part.size()), part); }

// Removes a number of exactly this many digits from the start of the text.
std::optional<int> TakeNumber(std::string_view& text, size_t digits) {
  int number = 0;
  const char* end = text.data() + std::min(digits, text.size());
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != text.data() + digits || text[0] == '-') return std::nullopt;
  text.remove_prefix(digits);
  return number;
}

bool Take(std::string_view& text, std::string_view characters) {
  if (text.empty() || characters.find(text[0]) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

std::optional<int64_t> TakeDate(std::string_view& text) {
  const auto year = TakeNumber(text, 4);
  if (!year || !Take(text, "-")) return std::nullopt;
  const auto month = TakeNumber(text, 2);
  if (!month || !Take(text, "-")) return std::nullopt;
  const auto day = TakeNumber(text, 2);
  if (!day) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                         std::chrono::day(static_cast<unsigned>(*day))};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date).time_since_epoch().count() * kDay;
}

int64_t TakeFraction(std::string_view& text) {
  int64_t value = 0;
  for (int64_t digit = kSecond / 10; !text.empty() && text[0] >= '0' && text[0] <= '9'; digit /= 10) {
    value += (text[0] - '0') * digit;
    text.remove_prefix(1);
  }
  return value;
}

std::optional<int64_t> TakeClock(std::string_view& text) {
  const auto hours = TakeNumber(text, 2);
  if (!hours || *hours > 23 || !Take(text, ":")) return std::nullopt;
  const auto minutes = TakeNumber(text, 2);
  if (!minutes || *minutes > 59) return std::nullopt;
  int64_t time = (*hours * 3600 + *minutes * 60) * kSecond;
  if (!Take(text, ":")) return time;
  const auto seconds = TakeNumber(text, 2);
  if (!seconds || *seconds > 59) return std::nullopt;
  time += *seconds * kSecond;
  return Take(text, ".") ? time + TakeFraction(text) : time;
}

// Negative if the time is before the bound.
int64_t Compared(int64_t time, const TimeBound& bound) {
  if (!bound.isTimeOfDay) return time - bound.microseconds;
  return (time % kDay + kDay) % kDay - bound.microseconds;
}

bool IsNamed(const DecodedMessage& decoded, const std::string& name) {
  if (Contains(decoded.name, name) && decoded.name.size() == name.size()) return true;
  if (decoded.family == Family::kQ931) {
    const std::string type = MessageTypeName(static_cast<unsigned>(decoded.Root()["messageType"].Number().value_or(0)));
    if (Contains(type, name) && type.size() == name.size()) return true;
  }
  return std::any_of(decoded.tunnelled.begin(), decoded.tunnelled.end(),
                     [&name](const DecodedMessage& tunnelled) { return IsNamed(tunnelled, name); });
}

bool IsOf(const DecodedMessage& decoded, Family family) {
  return decoded.family == family || (family == Family::kH245 && !decoded.tunnelled.empty());
}

bool IsNumber(const std::string& text) { return text.find_first_not_of("0123456789") == std::string::npos; }

// With fewer digits the text can only be a call number.
constexpr size_t kShortestPrefix = 6;

Wanted WantsIdentifier(const Call& call, const std::string& wanted) {
  if (IsNumber(wanted)) {
    if (std::to_string(call.number) == wanted) return Wanted::kYes;
    if (wanted.size() < kShortestPrefix) return Wanted::kNo;
  }
  const bool fits = std::any_of(call.identifiers.begin(), call.identifiers.end(),
                                [&wanted](const Guid& identifier) { return StartsWith(ToHex(identifier), wanted); });
  return fits ? Wanted::kYes : Wanted::kNotYet;
}

Wanted WantsParty(const Call& call, const std::string& wanted) {
  const auto is_wanted = [&wanted](const std::string& text) { return Contains(text, wanted); };
  for (const Party* party : {&call.caller, &call.called}) {
    if (std::any_of(party->aliases.begin(), party->aliases.end(), is_wanted)) return Wanted::kYes;
    for (const Endpoint& address : party->addresses) {
      if (is_wanted(ToText(address))) return Wanted::kYes;
    }
  }
  for (const Endpoint& address : call.endpoints) {
    if (is_wanted(ToText(address))) return Wanted::kYes;
  }
  return Wanted::kNotYet;
}

}  // namespace

bool IsFaulty(const DecodedMessage& decoded) {
  return !decoded.IsComplete() || std::any_of(decoded.tunnelled.begin(), decoded.tunnelled.end(), IsFaulty);
}

std::optional<TimeBound> ParseTimeBound(const std::string& text) {
  std::string_view rest = text;
  TimeBound bound;
  if (const auto date = TakeDate(rest)) {
    bound.microseconds = *date;
    if (rest.empty()) return bound;
    if (!Take(rest, "T ")) return std::nullopt;
  } else {
    rest = text;
    bound.isTimeOfDay = true;
  }
  const auto clock = TakeClock(rest);
  if (!clock) return std::nullopt;
  Take(rest, "Z");
  bound.microseconds += *clock;
  return rest.empty() ? std::optional(bound) : std::nullopt;
}

bool Filter::WantsMessage(const Message& candidate, const DecodedMessage& decoded) const {
  if (family && !IsOf(decoded, *family)) return false;
  if (!message.empty() && !IsNamed(decoded, message)) return false;
  return !candidate.origin || WantsTime(candidate.origin->microseconds);
}

bool Filter::WantsConnection(const Origin& origin) const {
  return !family && message.empty() && WantsTime(origin.microseconds);
}

bool Filter::WantsTime(int64_t microseconds) const {
  return !(since && Compared(microseconds, *since) < 0) && !(until && Compared(microseconds, *until) > 0);
}

Wanted Filter::WantsCall(const Call& candidate) const {
  const Wanted by_call = call.empty() ? Wanted::kYes : WantsIdentifier(candidate, call);
  const Wanted by_party = party.empty() ? Wanted::kYes : WantsParty(candidate, party);
  return std::min(by_call, by_party);
}
