Attribute VB_Name = "ShowUtilities"
' Shows the utilities from a button or a macro; see Utilities.cls. Nobody has run this yet.
Option Explicit

' Kept as long as the program runs: the object hears the event, and its connection serves the windows.
Private shown As Utilities

Public Sub ShowThem()
    If shown Is Nothing Then Set shown = New Utilities
    shown.Show "Provider=SQLOLEDB;Data Source=...;Initial Catalog=...;Integrated Security=SSPI", _
               DateSerial(2003, 11, 28), 2003, 1
End Sub
