' The shortest way to the utilities: a script for Windows' script host (cscript or wscript).
'
'   cscript utilities.vbs "Provider=...;Data Source=...;Initial Catalog=..."
'
' Tavrin.dll must be registered: regsvr32 /n /i:user Tavrin.dll
Option Explicit

Dim connection, utile

' The program's own connection to its database. The utilities borrow it: it has to stay open while they are up.
Set connection = CreateObject("ADODB.Connection")
connection.Open WScript.Arguments(0)

Set utile = CreateObject("Tavrin.Utile")

' Hear of the user's leaving. It is optional, and not every script host can connect to events.
On Error Resume Next
WScript.ConnectObject utile, "utile_"
If Err.Number <> 0 Then WScript.Echo "no events from this script host"
On Error GoTo 0

' The connection, the working date, the year of the financial year (a number, not a date), and the Id of the
' company. The call shows the palette and comes back at once; the user works on from there.
utile.Apel connection, DateSerial(2003, 11, 28), 2003, 1
WScript.Echo "the palette is open"

' Something has to fetch the user's keys and clicks while the windows are up. In a program that is the message
' loop it has anyway; a script borrows that of a message box.
MsgBox "Close the utilities, then press OK.", vbInformation, "Accounting"

' Let go of the object before the connection that it works on.
Set utile = Nothing
connection.Close
WScript.Echo "done"

' Called when the palette closes, and when the rate list does.
Sub utile_Iesire()
    WScript.Echo "Iesire"
End Sub
