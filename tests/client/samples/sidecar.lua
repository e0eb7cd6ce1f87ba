-- Emma.sdr/metadata.epub.lua
return {
    ["annotations"] = {
        [2] = {
            ["chapter"] = "Volume I, Chapter II",
            ["color"] = "gray",
            ["datetime"] = "2026-03-07 09:18:26",
            ["datetime_updated"] = "2026-03-08 10:00:00",
            ["drawer"] = "lighten",
            ["note"] = "Mr. Weston\
\"everybody's friend\"",
            ["page"] = "/body/DocFragment[4]/body/p[1]/text().158",
            ["pageno"] = 12,
            ["pos0"] = "/body/DocFragment[4]/body/p[1]/text().158",
            ["pos1"] = "/body/DocFragment[4]/body/p[1]/text().190",
            ["text"] = "a native of Highbury, and born of a respectable family",
        },
        [10] = {
            ["chapter"] = "Volume I, Chapter II",
            ["datetime"] = "2026-03-07 09:21:00",
            ["page"] = "/body/DocFragment[4]/body/p[9]/text()[2].0",
            ["pageno"] = 14,
            ["text"] = "in Volume I, Chapter II",
        },
        [1] = {
            ["chapter"] = "Volume I, Chapter I",
            ["color"] = "Yellow",
            ["datetime"] = "2026-03-07 09:05:01",
            ["drawer"] = "underscore",
            ["page"] = "/body/DocFragment[3]/body/p[10]/text().0",
            ["pageno"] = 9,
            ["pos0"] = "/body/DocFragment[3]/body/p[10]/text().0",
            ["pos1"] = "/body/DocFragment[3]/body/p[10]/text().27",
            ["text"] = "handsome, clever, and rich \226\128\148",
        },
        [11] = {},
    },
    ["bookmarks"] = {
        [1] = {
            ["datetime"] = "2020-01-01 00:00:00",
            ["page"] = "/body/DocFragment[3]/body/p[1].0",
        },
    },
    ["doc_props"] = {
        ["authors"] = "Jane Austen\
An Editor",
        ["title"] = "Emma",
    },
    ["percent_finished"] = 2.5e-1,
}
