// CListView: a view that is a list. Included by afxcview.h.
#pragma once

#include "afx/documents/ctrl_view.h"

class CListCtrl;

/// A program adds LVS_ styles in PreCreateWindow.
class QVAFX_API CListView : public CCtrlView {
    DECLARE_DYNCREATE(CListView)

public:
    CListView();
    CListCtrl& GetListCtrl() const;
};
