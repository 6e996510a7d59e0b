* The utilities from Visual FoxPro, with their event. Tavrin.dll must be registered; Visual FoxPro is a 32-bit program,
* so it takes the x86 one.
*
*   DO utilities WITH "Provider=SQLOLEDB;Data Source=...;Initial Catalog=...;Integrated Security=SSPI"
*
* Nobody has run this yet: there is no Visual FoxPro where the component is made.
LPARAMETERS connectionString

* Kept as long as the program runs. The utilities live on FoxPro's own message loop.
PUBLIC shownUtilities
shownUtilities = CREATEOBJECT("Utilities", m.connectionString)
* The working date, the year of the financial year (a number), and the Id of the company.
shownUtilities.Show({^2003-11-28}, 2003, 1)
RETURN

DEFINE CLASS Utilities AS Custom
    Connection = .NULL.
    Utile = .NULL.
    Listener = .NULL.

    PROCEDURE Init(connectionString)
        * The utilities borrow the connection: it has to stay open while they are up.
        THIS.Connection = CREATEOBJECT("ADODB.Connection")
        THIS.Connection.Open(m.connectionString)
        THIS.Utile = CREATEOBJECT("Tavrin.Utile")
        THIS.Listener = CREATEOBJECT("LeavingListener")
        EVENTHANDLER(THIS.Utile, THIS.Listener)
    ENDPROC

    * Comes back at once; the user works on from there.
    PROCEDURE Show(workingDate, financialYear, company)
        THIS.Utile.Apel(THIS.Connection, m.workingDate, m.financialYear, m.company)
    ENDPROC

    * Lets go of the object before the connection that it works on.
    PROCEDURE Destroy
        EVENTHANDLER(THIS.Utile, THIS.Listener, .T.)
        THIS.Utile = .NULL.
        THIS.Connection.Close()
    ENDPROC
ENDDEFINE

DEFINE CLASS LeavingListener AS Session OLEPUBLIC
    IMPLEMENTS __Utile IN "Tavrin.Utile"
    HasLeft = .F.

    * Comes when the palette closes, and when the rate list does, from inside the component: note it and return.
    PROCEDURE __Utile_Iesire() AS VOID
        THIS.HasLeft = .T.
    ENDPROC
ENDDEFINE
