// Everything of tqFramework: the strings, arrays and maps that cross tqSymbol's interface, the code
// page functions they are built on, and the windows that dialogs are made of. Each header opens
// with the conventions that hold for it.
#pragma once

#include "platform/CodePage.h"
#include "platform/framework/CArray.h"
#include "platform/framework/CMap.h"
#include "platform/framework/CMapStringToString.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/framework/CWinApp.h"
#include "platform/framework/HashKey.h"
#include "platform/framework/InvalidArgument.h"
#include "platform/framework/Storage.h"
#include "platform/framework/window/CButton.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/CWaitCursor.h"
#include "platform/framework/window/CWnd.h"
#include "platform/framework/window/DialogTemplate.h"
#include "platform/framework/window/ResourceContext.h"
#include "platform/framework/window/WindowTypes.h"
