// CTreeView: a view that is a tree. Included by afxcview.h.
#pragma once

#include "afx/documents/ctrl_view.h"

class CTreeCtrl;

/// A program adds TVS_ styles in PreCreateWindow.
class QVAFX_API CTreeView : public CCtrlView {
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();
    CTreeCtrl& GetTreeCtrl() const;
};
