-- An archive of version 1, as that version wrote it; the contents of its document come with the test.

CREATE TABLE orvik_archive_version (version BIGINT NOT NULL);

INSERT INTO orvik_archive_version (version) VALUES (1);

CREATE TABLE orvik_documents ( id BIGINT NOT NULL PRIMARY KEY,
  document_key TEXT NOT NULL,
  revision BIGINT NOT NULL,
  hash TEXT NOT NULL,
  bench TEXT NOT NULL,
  path TEXT NOT NULL,
  asset TEXT NOT NULL,
  serial TEXT NOT NULL,
  maker TEXT NOT NULL,
  model TEXT NOT NULL,
  outcome TEXT NOT NULL,
  finished BIGINT NOT NULL,
  run_date TEXT NOT NULL,
  added TEXT NOT NULL,
  instrument_type TEXT,
  instrument_serial TEXT,
  instrument_firmware TEXT,
  instrument_calibration BIGINT,
  UNIQUE (document_key,
  revision));

CREATE TABLE orvik_contents ( document_id BIGINT NOT NULL PRIMARY KEY REFERENCES orvik_documents (id),
  contents BYTEA NOT NULL);

CREATE TABLE orvik_elements ( document_id BIGINT NOT NULL REFERENCES orvik_documents (id),
  position BIGINT NOT NULL,
  element_id BIGINT NOT NULL,
  parent_id BIGINT NOT NULL,
  test_id BIGINT NOT NULL,
  sequence BIGINT NOT NULL,
  name TEXT NOT NULL,
  status BIGINT NOT NULL,
  mti_id BIGINT NOT NULL,
  service_code TEXT NOT NULL,
  service_value TEXT NOT NULL,
  PRIMARY KEY (document_id, position));

CREATE TABLE orvik_measurements ( document_id BIGINT NOT NULL,
  position BIGINT NOT NULL,
  value DOUBLE PRECISION,
  unit TEXT NOT NULL,
  flags TEXT NOT NULL,
  status BIGINT NOT NULL,
  PRIMARY KEY (document_id, position),
  FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position));

CREATE TABLE orvik_limits ( document_id BIGINT NOT NULL,
  position BIGINT NOT NULL,
  number BIGINT NOT NULL,
  standard TEXT NOT NULL,
  description TEXT NOT NULL,
  unit TEXT NOT NULL,
  low DOUBLE PRECISION,
  high DOUBLE PRECISION,
  PRIMARY KEY (document_id, position,
  number),
  FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position));

CREATE TABLE orvik_notes ( document_id BIGINT NOT NULL,
  position BIGINT NOT NULL,
  kind TEXT NOT NULL,
  number BIGINT NOT NULL,
  text TEXT NOT NULL,
  PRIMARY KEY (document_id, position,
  kind,
  number),
  FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position));

INSERT INTO orvik_documents (id, document_key, revision, hash, bench, path, asset, serial, maker, model, outcome,
  finished, run_date, added, instrument_type, instrument_serial, instrument_firmware, instrument_calibration)
  VALUES (1, 'k', 1, '55c38240b3d219107953c3cf90b87478fdd21385fbe2d2253a9e72a6eb57b31f',
  'bench-1', '/d/1', 'P-7', 'S', 'M', 'X', 'passed', 1, '2025-05-06T08:00:00Z', '2025-05-07T08:00:00Z', 'KELD(IN)',
  '1', '2', 35);

INSERT INTO orvik_elements (document_id, position, element_id, parent_id, test_id, sequence, name, status, mti_id,
  service_code, service_value) VALUES (1, 1, 1, 0, 410, 0, 'Protective earth', 1, 1, 'P', '');

INSERT INTO orvik_measurements (document_id, position, value, unit, flags, status)
  VALUES (1, 1, 123.5, 'mOhm', '', 1);

INSERT INTO orvik_limits (document_id, position, number, standard, description, unit, low, high)
  VALUES (1, 1, 1, 'IEC 62353', '', 'mOhm', NULL, 300.0);
