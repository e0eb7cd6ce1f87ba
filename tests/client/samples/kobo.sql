CREATE TABLE content (ContentID TEXT PRIMARY KEY, ContentType TEXT, Title TEXT, Attribution TEXT, VolumeIndex INTEGER, ChapterIDBookmarked TEXT);
CREATE TABLE Bookmark (BookmarkID TEXT PRIMARY KEY, VolumeID TEXT, ContentID TEXT, Text TEXT, Annotation TEXT, DateCreated TEXT, DateModified TEXT, ChapterProgress REAL, Hidden BOOL, UUID TEXT, Type TEXT, Color INTEGER, StartContainerPath TEXT, StartOffset INTEGER);
INSERT INTO content (ContentID, ContentType, Title, Attribution, VolumeIndex) VALUES
  ('file:///mnt/onboard/emma.epub', 6, 'Emma', 'Jane Austen', -1),
  ('file:///mnt/onboard/emma.epub!c1.xhtml', 9, 'Chapter 1', NULL, 0),
  ('file:///mnt/onboard/emma.epub!c2.xhtml', 9, 'Chapter 2', NULL, 1),
  ('file:///mnt/onboard/hojoki.epub', 6, '方丈記', '鴨長明', -1);
INSERT INTO Bookmark (BookmarkID, VolumeID, ContentID, Text, Annotation, DateCreated, DateModified, ChapterProgress, Hidden, UUID, Type, Color) VALUES
  ('b3', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c2.xhtml', 'Mr. Knightley', NULL, '2024-01-15T14:30:00.000', NULL, 0.1, 'false', 'u3', 'highlight', 3),
  ('b1', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', '
    handsome, clever, and rich ', 'The first line', '2024-01-15T14:30:00Z', '2024-02-01T08:00:00Z', 0.5, 'false', 'u1', 'note', 0),
  ('b2', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml#p2', NULL, NULL, '2024-01-15T14:30:00.000', NULL, 0.75, 'false', 'u2', 'dogear', NULL),
  ('b4', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', 'hidden', NULL, '2024-01-15T14:30:00.000', NULL, 0.2, 'true', 'u4', 'highlight', 1),
  ('b5', 'file:///mnt/onboard/hojoki.epub', 'x', 'ゆく河の流れは絶えずして', '', 'yesterday', NULL, 0, 0, 'u5', 'highlight', 2),
  ('b6', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', NULL, NULL, '2024-01-15T14:30:00.000', NULL, 0.9, 'false', 'u6', 'markup', NULL),
  ('b7', NULL, NULL, 'nowhere', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  ('b8', 'file:///mnt/onboard/lost.epub', NULL, 'ein Buch ohne Eintrag', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO content VALUES
  ('file:///mnt/onboard/Herman Melville/Moby Dick.epub', 6, 'Moby-Dick', 'Herman Melville', -1, NULL),
  ('file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 9, 'Cover', NULL, 0, NULL),
  ('file:///mnt/onboard/Herman Melville/Moby Dick.epub#(1)OEBPS/Text/split_001.html', 9, 'Chapter 1. Loomings', NULL, 1, NULL),
  ('file:///mnt/onboard/Herman Melville/Moby Dick.epub#(2)OEBPS/Text/split_003.html', 9, 'Chapter 2. The Carpet-Bag', NULL, 2, NULL),
  ('file:///mnt/onboard/Herman Melville/Moby Dick.epub#(10)OEBPS/Text/split_010.html', 9, 'Chapter 10. A Bosom Friend', NULL, 10, NULL),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub', 6, 'Candide', 'Voltaire', -1, NULL),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch02.xhtml', 9, 'OEBPS/ch02.xhtml', NULL, 1, NULL),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch02.xhtml-1', 899, 'Chapitre deuxième', NULL, 1, 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch02.xhtml'),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml', 9, 'OEBPS/ch30.xhtml', NULL, 29, NULL),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml-2', 899, 'Le jardin', NULL, 30, 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml'),
  ('file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml-1', 899, 'Chapitre trentième', NULL, 29, 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml');
INSERT INTO Bookmark (BookmarkID, VolumeID, ContentID, Text, StartContainerPath, StartOffset, ChapterProgress, DateCreated, Type, Color) VALUES
  ('m6', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'Queequeg was George Washington cannibalistically developed', 'OEBPS/Text/split_010.html#point(/1/4/16/1:112)', 112, 0.5, '2024-03-01T20:00:00.000', 'highlight', 0),
  ('m4', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'some certain significance lurks in all things', 'OEBPS/Text/split_001.html#point(/1/4/1030/1:20)', 20, 0.25, '2024-03-01T20:01:00.000', 'highlight', 0),
  ('m5', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'I stuffed a shirt or two', 'OEBPS/Text/split_003.html#point(/1/4/2/1:0)', 0, 0.25, '2024-03-01T20:02:00.000', 'highlight', 0),
  ('m3', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'It is a way I have of driving off the spleen', 'OEBPS/Text/split_001.html#point(/1/4/204/1:550)', 550, 0.25, '2024-03-01T20:03:00.000', 'highlight', 0),
  ('m2', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'Some years ago', 'OEBPS/Text/split_001.html#point(/1/4/204/1:17)', 17, 0.25, '2024-03-01T20:04:00.000', 'highlight', 0),
  ('m1', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'Call me Ishmael.', 'OEBPS/Text/split_001.html#point(/1/4/4/1:0)', 0, 0.21, '2024-03-01T20:05:00.000', 'highlight', 0),
  ('m7', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub', 'file:///mnt/onboard/Herman Melville/Moby Dick.epub#(0)OEBPS/Text/cover.html', 'the great flood-gates of the wonder-world swung open', 'OEBPS/Text/split_002.html#point(/1/4/2/1:3)', 3, 0.25, '2024-03-01T20:06:00.000', 'highlight', 0),
  ('c3', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml', 'il faut cultiver notre jardin', 'span#kobo\.1030\.1', 40, 0.9, '2024-03-02T20:00:00Z', 'highlight', 0),
  ('c2', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch30.xhtml', 'Travaillons sans raisonner', 'span#kobo\.204\.1', 0, 0.9, '2024-03-02T20:01:00Z', 'highlight', 0),
  ('c1', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub', 'file:///mnt/onboard/Voltaire/Candide.kepub.epub!!OEBPS/ch02.xhtml', 'Candide, tout transi', 'span#kobo\.12\.2', 0, 0.95, '2024-03-02T20:02:00Z', 'highlight', 0);
