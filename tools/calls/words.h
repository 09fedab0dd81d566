// The facts of a call as text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "calls/call.h"

// "4001, Alice Weber"; the first address if there is no alias.
std::string PartyText(const Party& party);

// "caller", "called", or the address of another endpoint.
std::string SideText(const Call& call, const Endpoint& endpoint);

// Why the call ended: "admission rejected: calledPartyNotRegistered"; otherwise what was not seen.
std::string EndText(const Call& call);
std::string EndText(const Call& call, const End& end);

// Everything that went wrong, one short text each.
std::vector<std::string> Faults(const Call& call);

// "004091FB7289F911802A050403020100"; empty if there is no identifier.
std::string IdentifierText(const Call& call);

// "admissionRequest 192.0.2.10:1719 -> 192.0.2.1:1719: admissionConfirm after 13 ms, direct"
std::string TransactionText(const RasTransaction& transaction);

// "channel 1  g711Ulaw64k  caller -> called  opened +0.169 s  ..."; times are relative to the start of the call.
std::string ChannelText(const Call& call, const Channel& channel);
// "192.0.2.20:6004: 250 RTP packets of type 0"
std::string MediaText(const MediaAddress& media);

// "58 ms"
std::string Milliseconds(int64_t microseconds);
// "4.070 s"
std::string Seconds(int64_t microseconds);

// "+4.070 s", relative to the start of the call
std::string Since(const Call& call, int64_t time);

std::string Joined(const std::vector<std::string>& texts, const char* separator);
