/* Ids of every window, control and command: ID_<window>_<control> (control arrays end in their index),
   IDD_<window> for dialog templates, ID_<menu item> for commands. A control's id is its child-window id, so
   other programs can find it. Each window has a block of a hundred. */
#ifndef LINDREL_RESOURCE_H
#define LINDREL_RESOURCE_H

#define IDR_frmStart 100
/* The drop-down menu of the toolbar's fifth button. */
#define IDR_frmStart_Toolbar_5 101

/* Pictures. The first icon is the one that Windows shows for the exe. */
#define IDI_frmStart 101
#define IDI_TrayArea 102
#define IDI_picGo 103
#define IDI_Image1 104
/* The pictures of the toolbar side by side; the names end in the size in pixels. */
#define IDB_ImageList1_24 111
#define IDB_ImageList1_30 112
#define IDB_ImageList1_36 113
#define IDB_ImageList1_48 114

/* The main window. */
#define ID_frmStart_TabStrip1 1001
#define ID_frmStart_ListURLs 1002
#define ID_frmStart_lblSiteName 1003
#define ID_frmStart_txtSite 1004
#define ID_frmStart_lblURL 1005
#define ID_frmStart_txtURL 1006
#define ID_frmStart_picGo 1007
#define ID_frmStart_FrameSearch 1008
#define ID_frmStart_cmbFinders 1009
#define ID_frmStart_txtFind 1010
#define ID_frmStart_Image1 1011
#define ID_frmStart_StatusBar1 1012
#define ID_frmStart_Toolbar 1013
#define ID_frmStart_lblFind 1014
#define ID_frmStart_Toolbar_1 1021
#define ID_frmStart_Toolbar_2 1022
#define ID_frmStart_Toolbar_3 1023
#define ID_frmStart_Toolbar_4 1024
#define ID_frmStart_Toolbar_5 1025
#define ID_frmStart_Toolbar_6 1026
#define ID_frmStart_Toolbar_7 1027
#define ID_frmStart_Toolbar_8 1028
#define ID_frmStart_Toolbar_9 1029
#define ID_frmStart_Toolbar_10 1030
#define ID_frmStart_ButtonMenu_1 1031
#define ID_frmStart_ButtonMenu_2 1032

/* Adding and editing an entry, moving entries, category names. */
#define IDD_frmAdd 1100
#define ID_frmAdd_Frame1 1101
#define ID_frmAdd_Label1 1102
#define ID_frmAdd_txtDesc 1103
#define ID_frmAdd_Label2 1104
#define ID_frmAdd_cmbKateg 1105
#define ID_frmAdd_lblHint 1106
#define ID_frmAdd_lblURL 1107
#define ID_frmAdd_txtURL 1108
#define ID_frmAdd_cmdEmail 1109
#define ID_frmAdd_cmdOK 1110
#define ID_frmAdd_cmdCancel 1111
#define IDD_frmEditRec 1200
#define ID_frmEditRec_Frame1 1201
#define ID_frmEditRec_Label1 1202
#define ID_frmEditRec_txtDesc 1203
#define ID_frmEditRec_Label2 1204
#define ID_frmEditRec_cmbKateg 1205
#define ID_frmEditRec_lblHint 1206
#define ID_frmEditRec_lblURL 1207
#define ID_frmEditRec_txtURL 1208
#define ID_frmEditRec_cmdOk 1209
#define ID_frmEditRec_Command1 1210
#define IDD_frmMove 1300
#define ID_frmMove_lblHint 1301
#define ID_frmMove_cmbKateg 1302
#define ID_frmMove_cmdOk 1303
#define ID_frmMove_cmdCancel 1304
#define IDD_frmEditKats 1400
#define ID_frmEditKats_txtKateg_0 1410
#define ID_frmEditKats_txtKateg_1 1411
#define ID_frmEditKats_txtKateg_2 1412
#define ID_frmEditKats_txtKateg_3 1413
#define ID_frmEditKats_txtKateg_4 1414
#define ID_frmEditKats_txtKateg_5 1415
#define ID_frmEditKats_txtKateg_6 1416
#define ID_frmEditKats_txtKateg_7 1417
#define ID_frmEditKats_txtKateg_8 1418
#define ID_frmEditKats_txtKateg_9 1419
#define ID_frmEditKats_txtKateg_10 1420
#define ID_frmEditKats_txtKateg_11 1421
#define ID_frmEditKats_lblKatName_0 1430
#define ID_frmEditKats_lblKatName_1 1431
#define ID_frmEditKats_lblKatName_2 1432
#define ID_frmEditKats_lblKatName_3 1433
#define ID_frmEditKats_lblKatName_4 1434
#define ID_frmEditKats_lblKatName_5 1435
#define ID_frmEditKats_lblKatName_6 1436
#define ID_frmEditKats_lblKatName_7 1437
#define ID_frmEditKats_lblKatName_8 1438
#define ID_frmEditKats_lblKatName_9 1439
#define ID_frmEditKats_lblKatName_10 1440
#define ID_frmEditKats_lblKatName_11 1441
#define ID_frmEditKats_cmdOk 1401
#define ID_frmEditKats_cmdCancel 1402

/* Finding entries. */
#define IDD_frmFind 1500
#define ID_frmFind_Label1 1501
#define ID_frmFind_txtWhat 1502
#define ID_frmFind_Label3 1503
#define ID_frmFind_Label2 1504
#define ID_frmFind_txtTag 1505
#define ID_frmFind_cmdFind 1506
#define ID_frmFind_ListView 1507
#define ID_frmFind_lblURL 1508
#define ID_frmFind_Command2 1509
#define ID_frmFind_Command3 1510
#define ID_frmFind_cmdDel 1511
#define ID_frmFind_lblSum_0 1520
#define ID_frmFind_lblSum_1 1521

/* Export. */
#define IDD_frmExport 1600
#define ID_frmExport_Frame1 1601
#define ID_frmExport_lblText 1602
#define ID_frmExport_lstSource 1603
#define ID_frmExport_Label2 1604
#define ID_frmExport_cmbType 1605
#define ID_frmExport_Frame3 1606
#define ID_frmExport_lblTitle 1607
#define ID_frmExport_txtTitle 1608
#define ID_frmExport_lblColor 1609
#define ID_frmExport_optColor_0 1610
#define ID_frmExport_optColor_1 1611
#define ID_frmExport_Label3 1612
#define ID_frmExport_cmbTheme 1613
#define ID_frmExport_cmdBrowse 1614
#define ID_frmExport_Frame2 1615
#define ID_frmExport_optColor_2 1616
#define ID_frmExport_optColor_3 1617
#define ID_frmExport_cmdOK 1618
#define ID_frmExport_cmdCancel 1619
#define IDD_frmSelectFavoritDir 1700
#define ID_frmSelectFavoritDir_lblChoose 1701
#define ID_frmSelectFavoritDir_Dir1 1702
#define ID_frmSelectFavoritDir_lblEffect 1703
#define ID_frmSelectFavoritDir_cmdOk 1704
#define ID_frmSelectFavoritDir_cmdCancel 1705

/* Import. */
#define IDR_frmImport 110
#define IDD_frmImport 1800
#define ID_frmImport_Frame1 1801
#define ID_frmImport_from_0 1810
#define ID_frmImport_from_1 1811
#define ID_frmImport_Label1 1802
#define ID_frmImport_Label2 1803
#define ID_frmImport_cmbKateg 1804
#define ID_frmImport_cmdOK 1805
#define ID_frmImport_cmdCancel 1806
#define IDD_frmI_Fav 1900
#define ID_frmI_Fav_lblChoose 1901
#define ID_frmI_Fav_Dir1 1902
#define ID_frmI_Fav_lblEffect 1903
#define ID_frmI_Fav_cmdImport 1904
#define ID_frmI_Fav_cmdCancel 1905

/* The about box. */
#define IDD_frmAbout 2000
#define ID_frmAbout_picIcon 2001
#define ID_frmAbout_lblTitle 2002
#define ID_frmAbout_lblVersion 2003
#define ID_frmAbout_lblDescription 2004
#define ID_frmAbout_Label1 2005
#define ID_frmAbout_lblDisclaimer 2006
#define ID_frmAbout_cmdOK 2007
#define ID_frmAbout_Line1_0 2010
#define ID_frmAbout_Line1_1 2011
/* Commands, in the order of the menus. */
#define ID_mnuNew 40001
#define ID_mnuOpen 40002
#define ID_mnuClose 40003
#define ID_mnuSave 40004
#define ID_mnuSaveAs 40005
#define ID_mnuKat 40006
#define ID_mnuExit 40007
#define ID_mnuAdd 40101
#define ID_mnuEdit 40102
#define ID_mnuFind 40103
#define ID_mnuMove 40104
#define ID_mnuDel 40105
#define ID_mnuSelectAll 40106
#define ID_mnuToDesktop 40107
#define ID_mnuGridLines 40201
#define ID_mnuTray 40202
#define ID_mnuImport 40301
#define ID_mnuExport 40302
#define ID_mnuGoto 40303
#define ID_mnuHelp 40401
#define ID_mnuGoHome 40402
#define ID_mnuAbout 40403
/* The import dialog's own menu. */
#define ID_mnuOnline 40601
#define ID_mnuAll 40602
/* Keys without a menu item: the next and the previous category. */
#define ID_NextTab 40501
#define ID_PreviousTab 40502

#endif
