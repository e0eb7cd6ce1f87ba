# Of the benchmarks' medians, the ratios that are to hold: a table, and "missed" where one does
# not. Rows without a limit are there to be read.
def times($statistic): [.[].benchmarks[] | select(.aggregate_name == $statistic)
  | {key: .run_name, value: .real_time}] | from_entries;
times("median") as $medians | times("fastest") as $fastest
| def time($name): $medians[$name] // error("no median of " + $name);
  def fastest($name): $fastest[$name] // error("no fastest of " + $name);
  def row($what; $ratio; $limit): {$what, $ratio, $limit};
  def growth($name; $few; $many):
    row("growth: \($name) \($few) -> \($many)";
        fastest("\($name)/\($many)") / fastest("\($name)/\($few)"); 11);
[
  ({render: "", write: "/writer"} | to_entries[] | .key as $task | .value as $ours
   | ["memory", "file"][] as $where | [1000, 100000][] as $n | "\($task)/\($where)\($ours)" as $name
   | ["libxml2", "tinyxml2", "pugixml"][] as $peer
   | row("\($name)/\($n) : \($peer)"; time("\($name)/\($n)") / time("\($task)/\($where)/\($peer)/\($n)");
         {"render/file/100000/tinyxml2": 0.45, "render/file/100000/libxml2": 0.35,
          "render/memory/1000/libxml2": 0.9, "render/memory/1000/tinyxml2": 0.9,
          "render/memory/1000/pugixml": 0.9}["\($name)/\($n)/\($peer)"])),
  (["memory", "file"][] as $where
   | row("render/\($where)/100000 : finished bytes";
         time("render/\($where)/100000") / time("finished/\($where)/100000"); null)),
  row("whole export : rendering, 1,000 notes"; time("exportNotes/1000") / time("render/file/1000"); 1.3),
  row("whole export : rendering, 100,000 notes"; time("exportNotes/100000") / time("render/file/100000"); null),
  row("whole export : fetching and rendering, 100,000 notes";
      time("exportNotes/100000") / time("fetchAndRender/100000"); 1.3),
  row("Base64 : OpenSSL"; time("base64") / time("base64Floor"); 1.25),
  row("lines of 72 : their encoding"; time("dumpElement/1000000") / time("dumpEncoding/1000000") - 1; 1),
  row("stand-in, export : floor as asked, 10,000 notes";
      time("exports/notes/10000") / time("exportFloor/asked/10000"); 2),
  row("stand-in, export : floor in one go, 10,000 notes";
      time("exports/notes/10000") / time("exportFloor/strict/10000"); null),
  row("stand-in, import : floor, 10,000 notes"; time("imports/10000") / time("importFloor/10000"); 2),
  (["exportNotes", "exportInOrderOfPredicate", "exports/notes", "imports"][]
   | growth(.; 1000; 10000), growth(.; 10000; 100000), growth(.; 30000; 300000)),
  (["exportComment", "exports/comment"][] | growth(.; 1000000; 10000000)),
  (["exportPictures", "exports/pictures"][] | growth(.; 50; 500)),
  growth("exportWithTakenNames"; 20; 200)
][]
| [.what, (.ratio * 100 | round / 100), .limit // "-",
   (if .limit != null and .ratio > .limit then "missed" else "" end)]
| @tsv
