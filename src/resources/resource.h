// Resource ids: form templates, pictures, and the controls of the forms under the names the interface gives them.
// A control keeps one id in every form that has it. cmdOK and the cancel buttons are IDOK and IDCANCEL, so that the
// dialog manager's Enter and Esc reach them. The stand-in host reads this file to address controls by name.
#pragma once

#define IDR_TYPELIB 1
#define IDR_MANIFEST 2

#define IDD_frmSaveTo 101
#define IDD_frmFilter 102
#define IDD_frmBusy 103
#define IDD_frmSaveAssignment 104
#define IDD_frmSaveGateDoc 105
#define IDD_frmSaveRelatedDoc 106
#define IDD_frmAbout 107

#define IDR_IMAGE_DELIVERABLE 201
#define IDR_IMAGE_ACTIVITY 202
#define IDR_IMAGE_RELATED 203
#define IDR_IMAGE_GATEDOC 204
#define IDR_IMAGE_PLAIN 205

#define cmdOK 1
#define cmkOK 1
#define cmdCancel 2
#define btnCancel 2

#define cmbServerURL 1001
#define lblServerURL 1002
#define cmdGo 1003
#define TreeView1 1004
#define txtTree 1005
#define lblTree 1006
#define cmdFilter 1007
#define cmdHelp 1008
#define StatusBar1 1009

#define ClassList 1020
#define lblClassList 1021
#define SearchString 1022
#define lblSearchString 1023
#define btnApplyFilter 1024
#define btnClearFilter 1025

#define ProgressBar1 1030
#define WaitLabel 1031

#define SaveToFrame 1040
#define lblProject 1041
#define txtProject 1042
#define lblDeliverable 1043
#define txtDeliverable 1044
#define lblActivity 1045
#define txtActivity 1046
#define cmdChange 1047
#define VersionDetailsFrame 1048
#define lblAuthor 1049
#define txtAuthor 1050
#define lblComments 1051
#define txtComments 1052
#define chkPublish 1053
#define AssignmentDetailsFrame 1054
#define lblNotes 1055
#define txtNotes 1056
#define chkComplete 1057
#define lblAdvisory 1058
#define cmdSave 1059
#define cmdSaveAndSend 1060

#define lblGate 1070
#define txtGate 1071
#define lblGateDocument 1072
#define txtGateDocument 1073

#define DocumentDetailsFrame 1080
#define lblName 1081
#define txtName 1082
#define lblDescription 1083
#define txtDescription 1084
#define lblGroup 1085
#define cboGroup 1086

#define lblComponentName 1090
#define lblVersion 1091
#define lblRights 1092
#define lblLegalNotice 1093
