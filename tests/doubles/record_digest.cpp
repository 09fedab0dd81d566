#include "doubles/record_digest.h"

namespace kelvra::test {
namespace {

template <class Record>
BlockCollector Collect(Record& record) {
  BlockCollector blocks;
  Record::Walk(record, blocks);
  return blocks;
}

}  // namespace

BlockCollector BlocksOf(h225::RasMessageRecord& record) { return Collect(record); }
BlockCollector BlocksOf(h225::Q931MessageRecord& record) { return Collect(record.userInformation); }
BlockCollector BlocksOf(h245::H245MessageRecord& record) { return Collect(record); }

}  // namespace kelvra::test
