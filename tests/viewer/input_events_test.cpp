// What captures report to a sink in addition to messages.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include "input/capture.h"

namespace {

using Octets = std::vector<uint8_t>;

constexpr uint8_t kSyn = 2;
constexpr uint8_t kRst = 4;
constexpr uint8_t kAck = 16;

void Append(Octets& octets, uint64_t number, size_t size) {
  for (size_t i = size; i > 0; --i) octets.push_back(static_cast<uint8_t>(number >> (8 * (i - 1))));
}

// An IPv4 packet from host 192.0.2.`source` to 192.0.2.`destination`.
Octets Packet(uint8_t protocol, uint8_t source, uint8_t destination, const Octets& payload) {
  Octets octets{0x45, 0};
  Append(octets, 20 + payload.size(), 2);
  Append(octets, 0, 4);
  octets.insert(octets.end(), {64, protocol, 0, 0, 192, 0, 2, source, 192, 0, 2, destination});
  octets.insert(octets.end(), payload.begin(), payload.end());
  return octets;
}

struct Ends {
  uint8_t from;
  uint16_t from_port;
  uint8_t to;
  uint16_t to_port;
};

constexpr Ends kForth{1, 40000, 2, 1720};
constexpr Ends kBack{2, 1720, 1, 40000};

Octets Segment(const Ends& ends, uint32_t sequence, uint8_t flags, const Octets& payload = {}) {
  Octets octets;
  Append(octets, ends.from_port, 2);
  Append(octets, ends.to_port, 2);
  Append(octets, sequence, 4);
  Append(octets, 1, 4);
  octets.insert(octets.end(), {0x50, flags, 0, 0, 0, 0, 0, 0});
  octets.insert(octets.end(), payload.begin(), payload.end());
  return Packet(6, ends.from, ends.to, octets);
}

Octets Datagram(uint16_t port, const Octets& payload) {
  Octets octets;
  Append(octets, 40000, 2);
  Append(octets, port, 2);
  Append(octets, 8 + payload.size(), 2);
  Append(octets, 0, 2);
  octets.insert(octets.end(), payload.begin(), payload.end());
  return Packet(17, 1, 2, octets);
}

class Recorder : public MessageSink {
 public:
  std::vector<Announced> OnMessage(const Message& message) override {
    Note("message", *message.origin);
    return announced;
  }
  void OnLoss(const std::string& what, const FileName&) override { events.push_back("loss " + what); }
  void OnNotice(const std::string& what) override { events.push_back("notice " + what); }
  void OnRefusedConnection(const Origin& origin) override { Note("refused", origin); }
  void OnMediaPacket(const Origin& origin, uint8_t payload_type, uint32_t ssrc) override {
    Note("media " + std::to_string(payload_type) + " " + std::to_string(ssrc), origin);
  }

  std::vector<Announced> announced;
  std::vector<std::string> events;

 private:
  void Note(const std::string& what, const Origin& origin) {
    events.push_back(std::to_string(origin.frame) + " " + what + " " + ToText(origin.source) + " > " +
                     ToText(origin.destination));
  }
};

class InputEvents : public testing::Test {
 protected:
  using Events = std::vector<std::string>;

  Events Read(const std::vector<Octets>& packets) {
    const std::string path = testing::TempDir() + "kelvra_input_events.pcap";
    Octets file;
    for (const uint32_t word : {0xA1B2C3D4U, 0x00020004U, 0U, 0U, 65535U, 101U}) Append(file, word, 4);
    for (const Octets& packet : packets) {
      Append(file, 0, 8);
      Append(file, packet.size(), 4);
      Append(file, packet.size(), 4);
      file.insert(file.end(), packet.begin(), packet.end());
    }
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    recorder_.events.clear();
    {
      ByteSource source(path);
      CaptureReader reader(ports_, recorder_);
      reader.Read(source);
      reader.Close();
    }
    std::remove(path.c_str());
    return recorder_.events;
  }

  CapturePorts ports_{{1719}, {1720}, {}};
  Recorder recorder_;
};

TEST_F(InputEvents, ResetThatAnswersAnOpeningIsARefusal) {
  const Octets syn = Segment(kForth, 0, kSyn);
  const Octets reset = Segment(kBack, 0, kRst | kAck);
  const Events refused{"2 refused 192.0.2.1:40000 > 192.0.2.2:1720"};
  EXPECT_EQ(Read({syn, reset}), refused);
  EXPECT_EQ(Read({syn, Segment(kBack, 0, kRst)}), refused);
  // A repeated SYN counts as the same; one with another sequence number is new.
  EXPECT_EQ(Read({syn, reset, syn, reset}), refused);
  EXPECT_EQ(Read({syn, reset, Segment(kForth, 700, kSyn), reset}),
            (Events{refused[0], "4 refused 192.0.2.1:40000 > 192.0.2.2:1720"}));
}

TEST_F(InputEvents, ResetOfAConnectionThatStoodIsNoRefusal) {
  const Octets syn = Segment(kForth, 0, kSyn);
  const Octets reset = Segment(kBack, 1, kRst);
  EXPECT_EQ(Read({syn, Segment(kBack, 0, kSyn | kAck), reset}), Events{});
  EXPECT_EQ(Read({Segment(kForth, 5, kAck), reset}), Events{});
  EXPECT_EQ(Read({Segment(kBack, 0, kSyn | kAck), Segment(kForth, 1, kRst)}), Events{});  // the SYN was not seen
  EXPECT_EQ(Read({syn, Segment(kForth, 1, kRst)}), Events{});  // abandoned by the side that opened it
  EXPECT_EQ(Read({Segment({1, 40000, 2, 80}, 0, kSyn), Segment({2, 80, 1, 40000}, 0, kRst)}), Events{});
}

TEST_F(InputEvents, MediaPacketsAreThoseThatLookLikeRtp) {
  Octets rtp{0x80, 0x88, 0, 1, 0, 0, 0, 0, 0, 0, 0x12, 0x34};
  EXPECT_EQ(Read({Datagram(5004, rtp)}), (Events{"1 media 8 4660 192.0.2.1:40000 > 192.0.2.2:5004"}));
  EXPECT_EQ(Read({Datagram(1719, rtp)}), (Events{"1 message 192.0.2.1:40000 > 192.0.2.2:1719"}));
  EXPECT_EQ(Read({Datagram(5004, {rtp.begin(), rtp.end() - 1})}), Events{});
  for (const auto& [first, second, count] : {std::tuple{0x40, 8, 0},
                                             {0xC0, 8, 0},
                                             {0xBF, 8, 1},
                                             {0x80, 0xC7, 1},
                                             {0x80, 0xC8, 0},
                                             {0x80, 0xCC, 0},
                                             {0x80, 0xCD, 1}}) {
    rtp[0] = static_cast<uint8_t>(first);
    rtp[1] = static_cast<uint8_t>(second);
    EXPECT_EQ(Read({Datagram(5004, rtp)}).size(), static_cast<size_t>(count)) << first << ' ' << second;
  }
}

TEST_F(InputEvents, AnnouncedAddressesAreReadAsTheirFamily) {
  const Octets alive{3, 0, 0, 8, 8, 1, 1, 0x5A};
  const Octets announcing = Segment(kForth, 1, kAck, alive);
  const Octets at_port = Segment({1, 40001, 2, 5001}, 1, kAck, alive);
  EXPECT_EQ(Read({announcing, at_port}).size(), 1U);
  for (const Family family : {Family::kQ931, Family::kH245}) {
    recorder_.announced = {{MakeEndpoint(Octets{192, 0, 2, 2}, 5001), family}};
    EXPECT_EQ(Read({announcing, at_port}).back(), "2 message 192.0.2.1:40001 > 192.0.2.2:5001");
  }
}

TEST_F(InputEvents, AnnouncedAddressWithoutMessagesIsReported) {
  recorder_.announced = {{MakeEndpoint(Octets{192, 0, 2, 2}, 5001), Family::kQ931}};
  const Octets announcing = Segment(kForth, 1, kAck, {3, 0, 0, 8, 8, 1, 1, 0x5A});
  const Octets other = Segment({1, 40001, 2, 5001}, 1, kAck, {'G', 'E', 'T', ' ', '/'});
  EXPECT_EQ(Read({announcing, other, other}).back(),
            "notice no message was recognised at 192.0.2.2:5001, which was announced for call signalling; segments: 2");
  EXPECT_EQ(Read({announcing, Segment({1, 40001, 2, 5001}, 1, kAck)}).size(), 1U);  // opened, but no data
}

// Addresses with ports from 5001 on.
std::vector<Announced> Ports(uint16_t count) {
  std::vector<Announced> ports;
  for (uint16_t i = 0; i < count; ++i) {
    ports.push_back({MakeEndpoint(Octets{192, 0, 2, 2}, static_cast<uint16_t>(5001 + i)), Family::kQ931});
  }
  return ports;
}

TEST_F(InputEvents, AddressAnnouncedAgainTakesNoPlaceOfAnother) {
  const Octets message{3, 0, 0, 8, 8, 1, 1, 0x5A};
  recorder_.announced = std::vector<Announced>(5000, Ports(2).back());
  recorder_.announced.front() = Ports(1).front();
  EXPECT_EQ(Read({Segment(kForth, 1, kAck, message), Segment({1, 40001, 2, 5001}, 1, kAck, message)}).size(), 2U);
}

TEST_F(InputEvents, ReportsOfAnnouncedAddressesAreFew) {
  recorder_.announced = Ports(10);
  std::vector<Octets> packets{Segment(kForth, 1, kAck, {3, 0, 0, 8, 8, 1, 1, 0x5A})};
  for (const Announced& at : Ports(10)) packets.push_back(Segment({1, 40001, 2, at.endpoint.port}, 1, kAck, {'G'}));
  const Events events = Read(packets);
  const auto is_report = [](const std::string& event) { return event.starts_with("notice no message"); };
  EXPECT_EQ(std::count_if(events.begin(), events.end(), is_report), 8);
  EXPECT_EQ(events.back(), "notice nor at further announced addresses: 2");
}

}  // namespace
