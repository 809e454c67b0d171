' Calls every public member of the add-in's classes as a script does, by their programmatic ids.
Option Explicit
Const Project = "CorvaneMSOfficePowerPoint."
Dim failures: failures = 0

Sub Expect(what, actual, expected)
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo what & ": " & actual & " instead of " & expected
End Sub

Dim log: Set log = CreateObject(Project & "CTraceLog")
Expect "bTimeStamp", log.bTimeStamp, True
Expect "GetTabs at level 0", log.GetTabs(), vbTab
log.WriteEventStart "Script.Outer"
Expect "GetTabs at level 1", log.GetTabs(), vbTab & vbTab
log.WriteLine "a line", 1
log.WriteVariable "Number", 5
log.WriteVariable "Nothing", Empty
log.WriteError 287, "declined", "Script"
log.WriteEventEnd "Script.Outer"
Expect "GetTabs after the end", log.GetTabs(), vbTab
log.WriteEventEnd "Script.Outer"
Expect "GetTabs below level 0", log.GetTabs(), ""

Dim button: Set button = CreateObject(Project & "CRbnBtnInfo")
button.ID = "1": button.Label = "2": button.ImageMso = "3": button.Screentip = "4": button.Supertip = "5"
button.GetEnabled = "6": button.GetLabel = "7": button.GetSupertip = "8": button.GetScreentip = "9"
button.OnAction = "10": button.Description = "11": button.Size = "12"
Expect "properties", button.ID & button.Label & button.ImageMso & button.Screentip & button.Supertip & _
    button.GetEnabled & button.GetLabel & button.GetSupertip & button.GetScreentip & button.OnAction & _
    button.Description & button.Size, "123456789101112"
button.Clear
Expect "Clear keeps label and tips", button.ID & button.Label & button.ImageMso & button.Screentip & _
    button.Supertip & button.GetEnabled & button.GetLabel & button.GetSupertip & button.GetScreentip & _
    button.OnAction & button.Description & button.Size, "245"

' Without a connection each of these shows a message of its own.
Dim controller: Set controller = CreateObject(Project & "CController")
controller.SaveAsAssignement
controller.SaveGateDoc
controller.SaveRelatedDoc

WScript.Echo "failures: " & failures
WScript.Quit failures
