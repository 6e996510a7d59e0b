-- The tables that the utilities rely on, and the rights of those who work with them. Transact-SQL, SQL Server 2005 or
-- later. Replace Firma by the name of the program's database, and contabil by the login that the program uses.
--
-- It may be run on a database that is in use, and again: what exists is left as it is, but for the column [$], which
-- is added where it is missing. Which columns an existing table must have at least stands beside each; it may have
-- others as long as a row can be added without them. rows.sql has a few rows to try an empty database on.
--
-- The statements of the utilities give texts without N, so they pass through the code page of the database's
-- collation: choose Romanian_CI_AS, or from SQL Server 2019 on Romanian_100_CI_AS_SC_UTF8, which also keeps the s
-- and t with a comma below. A database that exists keeps its collation.

-- The administration database, on the same server and under this very name: a statement names it in full.
IF DB_ID('AdmQuadrel') IS NULL CREATE DATABASE AdmQuadrel COLLATE Romanian_CI_AS;
GO
IF DB_ID('Firma') IS NULL CREATE DATABASE Firma COLLATE Romanian_CI_AS;
GO

-- One row per company. Id is what the host passes to Apel; Curs is the last day on which rates were validated:
-- rates on or before it are frozen, NULL freezes none. At least: Id int, Curs datetime or smalldatetime.
IF OBJECT_ID('AdmQuadrel.dbo.Societati') IS NULL
    CREATE TABLE AdmQuadrel.dbo.Societati (Id int NOT NULL PRIMARY KEY, Denumire nvarchar(80), Curs smalldatetime);
GO

USE Firma;
GO

-- One row per day. The order of columns matters: Data first, Validat second, then one float column per currency,
-- named by its code. Whole lei; 0 where no rate was given. At least: Data datetime, one more column in the second
-- place, and floats. The key keeps a day from being entered twice.
IF OBJECT_ID('dbo.[Curs Valutar]') IS NULL
    CREATE TABLE dbo.[Curs Valutar] ([Data] datetime NOT NULL PRIMARY KEY, Validat int NULL, EUR float NULL);
GO
-- The calculator first asks for the currency called $: without that column the database refuses, and the user is
-- told.
IF COL_LENGTH('dbo.[Curs Valutar]', '$') IS NULL ALTER TABLE dbo.[Curs Valutar] ADD [$] float NULL;
GO

-- The host's list of currencies; a new currency is inserted with the rate 0. At least: Valuta text, Curs a number.
IF OBJECT_ID('dbo.LpVal') IS NULL CREATE TABLE dbo.LpVal (Valuta nvarchar(10) NOT NULL PRIMARY KEY, Curs float NULL);
GO

-- The financial years, read where no day has any rate yet. At least: An int.
IF OBJECT_ID('dbo.An') IS NULL CREATE TABLE dbo.An (An int NOT NULL PRIMARY KEY);
GO

-- The address book: sixteen texts, all of them needed. A person is the pair of names; without a key two rows of one
-- pair would be changed and deleted together.
IF OBJECT_ID('dbo.Agenda') IS NULL
    CREATE TABLE dbo.Agenda (
        Nume nvarchar(50) NOT NULL, Prenume nvarchar(50) NOT NULL,
        AdresaHome nvarchar(100) NOT NULL, OrasHome nvarchar(50) NOT NULL, JudetHome nvarchar(50) NOT NULL,
        TelefonAcasa nvarchar(30) NOT NULL, TelefonMobil nvarchar(30) NOT NULL, Email nvarchar(100) NOT NULL,
        DescriereFirma nvarchar(100) NOT NULL, AdresaFirma nvarchar(100) NOT NULL, OrasFirma nvarchar(50) NOT NULL,
        JudetFirma nvarchar(50) NOT NULL, Telefon nvarchar(30) NOT NULL, Fax nvarchar(30) NOT NULL,
        Departament nvarchar(50) NOT NULL, Functie nvarchar(50) NOT NULL,
        PRIMARY KEY (Nume, Prenume));
GO

-- The rights, for a role. ALTER is for those who add currencies; leave its line out for the others.
IF DATABASE_PRINCIPAL_ID('Utilitati') IS NULL CREATE ROLE Utilitati;
GO
GRANT SELECT, INSERT, UPDATE, DELETE ON dbo.[Curs Valutar] TO Utilitati;
GRANT ALTER ON dbo.[Curs Valutar] TO Utilitati;
GRANT SELECT, INSERT, UPDATE, DELETE ON dbo.Agenda TO Utilitati;
GRANT INSERT ON dbo.LpVal TO Utilitati;
GRANT SELECT ON dbo.An TO Utilitati;
GO

-- The login, where there is one of that name. Its language decides how the server reads a date that is given as
-- month-day-year; us_english reads it so, romanian takes the month for the day.
IF SUSER_ID('contabil') IS NOT NULL ALTER LOGIN contabil WITH DEFAULT_LANGUAGE = us_english;
GO
IF SUSER_ID('contabil') IS NOT NULL AND USER_ID('contabil') IS NULL CREATE USER contabil FOR LOGIN contabil;
GO
IF USER_ID('contabil') IS NOT NULL EXEC sp_addrolemember 'Utilitati', 'contabil';
GO

-- The same in the administration database.
USE AdmQuadrel;
GO
IF DATABASE_PRINCIPAL_ID('Utilitati') IS NULL CREATE ROLE Utilitati;
GO
GRANT SELECT ON dbo.Societati TO Utilitati;
GO
IF SUSER_ID('contabil') IS NOT NULL AND USER_ID('contabil') IS NULL CREATE USER contabil FOR LOGIN contabil;
GO
IF USER_ID('contabil') IS NOT NULL EXEC sp_addrolemember 'Utilitati', 'contabil';
GO
