-- A few rows to try the utilities on, for a database that tables.sql has made and nobody has used yet. Replace Firma by
-- its name.
USE Firma;
GO
INSERT INTO AdmQuadrel.dbo.Societati (Id, Denumire, Curs) VALUES (1, 'Exemplu Comert SRL', '20030331');
INSERT INTO AdmQuadrel.dbo.Societati (Id, Denumire, Curs) VALUES (2, 'Exemplu Servicii SRL', NULL);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20030331', 1, 36580, 33480);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031103', 0, 38862, 33461);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031104', 0, 38715, 33520);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031128', 0, 39862, 33439);
INSERT INTO LpVal (Valuta, Curs) VALUES ('EUR', 39862);
INSERT INTO LpVal (Valuta, Curs) VALUES ('$', 33439);
INSERT INTO An (An) VALUES (2003);
INSERT INTO Agenda VALUES ('Popescu', 'Ana', 'Str. Teilor nr. 4', 'Iasi', 'Iasi', '0232/000111', '0700/000111',
    'ana.popescu@example.ro', 'Exemplu Textil SRL', 'Str. Morii nr. 9', 'Iasi', 'Iasi', '0232/111222',
    '0232/112222', 'Contabilitate', 'Economist');
INSERT INTO Agenda VALUES ('Rusu', 'Mihai', 'Str. Viilor nr. 7', 'Oradea', 'Bihor', '', '0700/000222',
    'mihai.rusu@example.ro', '', '', '', '', '', '', '', '');
GO
