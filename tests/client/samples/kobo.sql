CREATE TABLE content (ContentID TEXT PRIMARY KEY, ContentType TEXT, Title TEXT, Attribution TEXT, VolumeIndex INTEGER);
CREATE TABLE Bookmark (BookmarkID TEXT PRIMARY KEY, VolumeID TEXT, ContentID TEXT, Text TEXT, Annotation TEXT, DateCreated TEXT, DateModified TEXT, ChapterProgress REAL, Hidden BOOL, UUID TEXT, Type TEXT, Color INTEGER);
INSERT INTO content VALUES
  ('file:///mnt/onboard/emma.epub', 6, 'Emma', 'Jane Austen', -1),
  ('file:///mnt/onboard/emma.epub!c1.xhtml', 9, 'Chapter 1', NULL, 0),
  ('file:///mnt/onboard/emma.epub!c2.xhtml', 9, 'Chapter 2', NULL, 1),
  ('file:///mnt/onboard/hojoki.epub', 6, '方丈記', '鴨長明', -1);
INSERT INTO Bookmark VALUES
  ('b3', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c2.xhtml', 'Mr. Knightley', NULL, '2024-01-15T14:30:00.000', NULL, 0.1, 'false', 'u3', 'highlight', 3),
  ('b1', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', '
    handsome, clever, and rich ', 'The first line', '2024-01-15T14:30:00Z', '2024-02-01T08:00:00Z', 0.5, 'false', 'u1', 'note', 0),
  ('b2', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml#p2', NULL, NULL, '2024-01-15T14:30:00.000', NULL, 0.75, 'false', 'u2', 'dogear', NULL),
  ('b4', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', 'hidden', NULL, '2024-01-15T14:30:00.000', NULL, 0.2, 'true', 'u4', 'highlight', 1),
  ('b5', 'file:///mnt/onboard/hojoki.epub', 'x', 'ゆく河の流れは絶えずして', '', 'yesterday', NULL, 0, 0, 'u5', 'highlight', 2),
  ('b6', 'file:///mnt/onboard/emma.epub', 'file:///mnt/onboard/emma.epub!c1.xhtml', NULL, NULL, '2024-01-15T14:30:00.000', NULL, 0.9, 'false', 'u6', 'markup', NULL),
  ('b7', NULL, NULL, 'nowhere', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  ('b8', 'file:///mnt/onboard/lost.epub', NULL, 'ein Buch ohne Eintrag', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
