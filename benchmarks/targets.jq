# Of the benchmarks' medians, the ratios that are to hold: a table, and "missed" where one does
# not. Rows without a limit are there to be read.
[.[].benchmarks[] | select(.aggregate_name == "median")] as $medians
| ($medians | map({key: .run_name, value: .real_time}) | from_entries) as $times
| def time($name): $times[$name] // error("no median of " + $name);
  def row($what; $ratio; $limit): {$what, $ratio, $limit};
  {"ratio/exportToFetchingAndRendering/1000": 1.3,
   "ratio/exportToFetchingAndRendering/100000": 1.3, "ratio/dumpElementToItsEncoding/1000000": 2,
   "ratio/base64ToOpenSsl/400000": 1.25, "ratio/hostExportToFloorAsAsked/10000": 1.7, "ratio/hostExportToFloorInOneGo/10000": 3.7,
   "ratio/hostImportToFloor/10000": 1.6, "ratio/loadClippingsToDeviceFile/100000": 1.5,
   "ratio/loadKoboToDeviceFile/100000": 1.5, "ratio/loadAnnotationsToDeviceFile/100000": 1.5,
   "ratio/loadSidecarToDeviceFile/100000": 1.5, "ratio/readingOrderToExport/100000": 0.2,
   "ratio/exportAllToOneByOne/400": 1.25, "ratio/updateToExportAll/400": 0.2} as $limits
| [
  ($limits | keys[] | time(.) | empty),  # each of them was measured
  (["memory", "file"][] as $where | [1000, 100000][] as $n | "render/\($where)" as $name
   | ["libxml2", "tinyxml2"][] as $peer
   | row("\($name)/\($n) : \($peer)"; time("\($name)/\($n)") / time("\($name)/\($peer)/\($n)");
         {"render/file/100000/tinyxml2": 0.45, "render/file/100000/libxml2": 0.35,
          "render/memory/1000/libxml2": 0.9, "render/memory/1000/tinyxml2": 0.9}
         ["\($name)/\($n)/\($peer)"])),
  (["memory", "file"][] as $where
   | row("render/\($where)/100000 : finished bytes";
         time("render/\($where)/100000") / time("finished/\($where)/100000"); {file: 5}[$where])),
  ($medians | map(select(.run_name | test("^(ratio|growth)/"))) | sort_by(.run_name)[]
   | row(.run_name; .ratio // error("no ratio of " + .run_name);
         if .run_name | startswith("growth/") then 11 else $limits[.run_name] end))
][]
| [.what, (.ratio * 100 | round / 100), .limit // "-",
   (if .limit != null and .ratio > .limit then "missed" else "" end)]
| @tsv
