/* Ids of every window, control and command: ID_<window>_<control> (control arrays end in their index),
   IDD_<window> for dialog templates, ID_<menu item> for commands. A control's id is its child-window id, so a
   program outside can find it. Each window has a block of a hundred. */
#ifndef LINDREL_RESOURCE_H
#define LINDREL_RESOURCE_H

#define IDR_frmStart 100

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

/* Blocks of the dialogs: frmAdd 1100, frmEditRec 1200, frmMove 1300, frmEditKats 1400, frmFind 1500,
   frmExport 1600, frmSelectFavoritDir 1700, frmImport 1800, frmI_Fav 1900, frmAbout 2000. */

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
/* Keys without a menu item: the next and the previous category. */
#define ID_NextTab 40501
#define ID_PreviousTab 40502

#endif
