#!/usr/bin/env bash
# Decodes a folder of captures into JSON lines, one file per capture and day, and loads them into SQLite.
#
#   examples/shards.sh CAPTURES OUTPUT [KELVRA_DUMP]
#
# OUTPUT/day=YYYY-MM-DD/NAME.jsonl holds the messages of the capture NAME on that day (UTC), OUTPUT/messages.db the
# table `messages`, and OUTPUT/log the faults of the input. NAME is the path of the capture, with % for /. Each capture
# has its own process, as many at a time as there are cores. The exit status is 1 if a capture could not be read to its
# end.
set -euo pipefail

export CAPTURES=${1%/} OUTPUT=$2 KELVRA_DUMP=${3:-kelvra-dump}
mkdir -p "$OUTPUT/log"

# Decodes one capture: shard FILE. Status 1 of the viewer only means that some messages are incomplete.
shard() {
  local name status=0
  name=${1#"$CAPTURES"/}
  name=${name//\//%}
  # A line with the day precedes each object; awk uses it to choose the file.
  { "$KELVRA_DUMP" --format json "$1" 2>"$OUTPUT/log/$name" || echo $? >"$OUTPUT/log/$name.status"; } |
    jq -rc '.time[:10], .' |
    awk -v output="$OUTPUT" -v name="$name" '
      NR % 2 == 1 { day = $0; next }
      !(day in files) {
        folder = output "/day=" day
        system("mkdir -p \"" folder "\"")
        files[day] = folder "/" name ".jsonl"
      }
      { print > files[day] }'
  if [[ -e $OUTPUT/log/$name.status ]]; then
    status=$(<"$OUTPUT/log/$name.status")
    rm "$OUTPUT/log/$name.status"
  fi
  [[ $status -lt 2 ]]
}
export -f shard

failed=0
find "$CAPTURES" -type f \( -name '*.pcap' -o -name '*.pcapng' \) -print0 |
  xargs -0 -r -n 1 -P "$(nproc)" bash -euo pipefail -c 'shard "$1"' _ || failed=1

rm -f "$OUTPUT/messages.db"
sqlite3 "$OUTPUT/messages.db" <<'SQL'
CREATE TABLE messages (
  day TEXT NOT NULL, shard TEXT NOT NULL, frame INTEGER NOT NULL, time TEXT NOT NULL, source TEXT NOT NULL,
  destination TEXT NOT NULL, family TEXT NOT NULL, name TEXT, complete INTEGER NOT NULL, octets INTEGER NOT NULL,
  cause TEXT, message TEXT NOT NULL);
SQL
find "$OUTPUT" -name '*.jsonl' -print0 | sort -z | while IFS= read -r -d '' file; do
  jq -r --arg shard "$(basename "$file" .jsonl)" '
    [.time[:10], $shard, .frame, .time, .source, .destination, .family, .name, (.complete | if . then 1 else 0 end),
     .octets, .fault.cause, (.message | tojson)] | @csv' "$file" |
    sqlite3 "$OUTPUT/messages.db" '.mode csv' '.import /dev/stdin messages'
done
sqlite3 "$OUTPUT/messages.db" 'CREATE INDEX by_name ON messages (name, day)'

sqlite3 -header -column "$OUTPUT/messages.db" '
  SELECT day, family, name, count(*) AS messages, sum(NOT complete) AS incomplete
  FROM messages GROUP BY day, family, name ORDER BY day, messages DESC, name'
exit "$failed"
