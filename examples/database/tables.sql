-- The tables that the utilities rely on, with a few rows to try them on. Transact-SQL, SQL Server 2000 or later.
-- Run it once in the database that the host's connection opens, under a login that may create databases.
--
-- The statements of the utilities give texts without N, so they pass through the code page of the database's collation:
-- choose Romanian_CI_AS, or from SQL Server 2019 on Romanian_100_CI_AS_SC_UTF8, which keeps ș and ț with a comma as well.
--
-- Names are read by exact text in places: keep their case. The utilities write currency columns as [EUR] float and
-- create nothing else.

-- The host's administration database, on the same server and under this name: the statement names it in full.
CREATE DATABASE AdmQuadrel;
GO

-- One row per company. Id is what the host passes to Apel; Curs is the last day on which rates were validated:
-- rates on or before it are frozen, NULL freezes none.
CREATE TABLE AdmQuadrel.dbo.Societati (Id int NOT NULL PRIMARY KEY, Denumire nvarchar(80), Curs smalldatetime);
INSERT INTO AdmQuadrel.dbo.Societati (Id, Denumire, Curs) VALUES (1, 'Exemplu Comert SRL', '20030331');
INSERT INTO AdmQuadrel.dbo.Societati (Id, Denumire, Curs) VALUES (2, 'Exemplu Servicii SRL', NULL);
GO

-- One row per day. The order of columns matters: Data first, Validat second, then one float column per currency,
-- named by its code. Whole lei; 0 where no rate was given. The
-- calculator first asks for the currency called $: without that column the database refuses, and the user is told. The
-- key keeps a day from being entered twice.
CREATE TABLE [Curs Valutar] ([Data] datetime NOT NULL PRIMARY KEY, Validat int NULL, EUR float NULL, [$] float NULL);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20030331', 1, 36580, 33480);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031103', 0, 38862, 33461);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031104', 0, 38715, 33520);
INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20031128', 0, 39862, 33439);
GO

-- The host's list of currencies; a new currency is inserted with the rate 0.
CREATE TABLE LpVal (Valuta nvarchar(10) NOT NULL PRIMARY KEY, Curs float NULL);
INSERT INTO LpVal (Valuta, Curs) VALUES ('EUR', 39862);
INSERT INTO LpVal (Valuta, Curs) VALUES ('$', 33439);
GO

-- The financial years, read where no day has any rate yet.
CREATE TABLE An (An int NOT NULL PRIMARY KEY);
INSERT INTO An (An) VALUES (2003);
GO

-- The address book: sixteen texts, never NULL. A person is the pair of names; the key is yours to declare, and
-- without it two rows of one pair would be changed and deleted together.
CREATE TABLE Agenda (
    Nume nvarchar(50) NOT NULL, Prenume nvarchar(50) NOT NULL,
    AdresaHome nvarchar(100) NOT NULL, OrasHome nvarchar(50) NOT NULL, JudetHome nvarchar(50) NOT NULL,
    TelefonAcasa nvarchar(30) NOT NULL, TelefonMobil nvarchar(30) NOT NULL, Email nvarchar(100) NOT NULL,
    DescriereFirma nvarchar(100) NOT NULL, AdresaFirma nvarchar(100) NOT NULL, OrasFirma nvarchar(50) NOT NULL,
    JudetFirma nvarchar(50) NOT NULL, Telefon nvarchar(30) NOT NULL, Fax nvarchar(30) NOT NULL,
    Departament nvarchar(50) NOT NULL, Functie nvarchar(50) NOT NULL,
    PRIMARY KEY (Nume, Prenume));
INSERT INTO Agenda VALUES ('Popescu', 'Ana', 'Str. Teilor nr. 4', 'Iasi', 'Iasi', '0232/000111', '0700/000111',
    'ana.popescu@example.ro', 'Exemplu Textil SRL', 'Str. Morii nr. 9', 'Iasi', 'Iasi', '0232/111222',
    '0232/112222', 'Contabilitate', 'Economist');
INSERT INTO Agenda VALUES ('Rusu', 'Mihai', 'Str. Viilor nr. 7', 'Oradea', 'Bihor', '', '0700/000222',
    'mihai.rusu@example.ro', '', '', '', '', '', '', '', '');
GO
