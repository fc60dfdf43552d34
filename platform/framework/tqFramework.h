// Everything of tqFramework: the strings, arrays and maps that cross tqSymbol's interface, the code
// page functions they are built on, and the windows that dialogs are made of. Each header opens
// with the conventions that hold for it.
#pragma once

#include "platform/CodePage.h"
#include "platform/framework/CArray.h"
#include "platform/framework/CButton.h"
#include "platform/framework/CComboBox.h"
#include "platform/framework/CDialog.h"
#include "platform/framework/CEdit.h"
#include "platform/framework/CListBox.h"
#include "platform/framework/CListCtrl.h"
#include "platform/framework/CMap.h"
#include "platform/framework/CMapStringToString.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/framework/CWaitCursor.h"
#include "platform/framework/CWinApp.h"
#include "platform/framework/CWnd.h"
#include "platform/framework/DialogTemplate.h"
#include "platform/framework/HashKey.h"
#include "platform/framework/InvalidArgument.h"
#include "platform/framework/ResourceContext.h"
#include "platform/framework/Storage.h"
#include "platform/framework/WindowTypes.h"
