-- we can read Lua syntax here!
return {
    ["bookmarks"] = {
        [1] = {
            ["chapter"] = "Volume I, Chapter II",
            ["datetime"] = "2026-03-07 09:21:00",
            ["notes"] = "in Volume I, Chapter II",
            ["page"] = "/body/DocFragment[4]/body/p[9]/text()[2].0",
        },
        [2] = {
            ["datetime"] = "2026-03-07 09:18:26",
            ["highlighted"] = true,
            ["notes"] = "a native of Highbury, and born of a respectable family",
            ["page"] = "/body/DocFragment[4]/body/p[1]/text().158",
            ["pos0"] = "/body/DocFragment[4]/body/p[1]/text().158",
            ["text"] = "Mr. Weston",
        },
        [3] = {
            ["datetime"] = "2026-03-07 09:05:02",
            ["highlighted"] = true,
            ["notes"] = "handsome, clever, and rich \226\128\148",
            ["page"] = "/body/DocFragment[3]/body/p[10]/text().0",
            ["pos0"] = "/body/DocFragment[3]/body/p[10]/text().0",
            ["text"] = "Page 9 handsome, clever, and rich @ 2026-03-07 09:05:02",
        },
    },
    ["highlight"] = {
        [11] = {
            [1] = {
                ["chapter"] = "Volume I, Chapter II",
                ["datetime"] = "2026-03-07 09:18:26",
                ["drawer"] = "lighten",
                ["pos0"] = "/body/DocFragment[4]/body/p[1]/text().158",
                ["pos1"] = "/body/DocFragment[4]/body/p[1]/text().190",
                ["text"] = "a native of Highbury, and born of a respectable family",
            },
        },
        [9] = {
            [1] = {
                ["chapter"] = "Volume I, Chapter I",
                ["datetime"] = "2026-03-07 09:05:01",
                ["drawer"] = "lighten",
                ["pos0"] = "/body/DocFragment[3]/body/p[10]/text().0",
                ["text"] = "handsome, clever, and rich \226\128\148",
            },
        },
    },
    ["stats"] = {
        ["authors"] = "Jane Austen\
An Editor",
        ["title"] = "Emma",
    },
}
