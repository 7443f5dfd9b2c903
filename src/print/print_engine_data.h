// QVPrintEngineData: the base of what a print engine puts on pages.
//
// An item reports the height that it needs at least and at most, whether it vanishes at the top of
// a page, whether it must not be left alone at its foot, and how many of its rows fit into a
// height. A row is whatever the item makes of it; an item without rows ignores row numbers.
//
// Heights and widths are in units of the device context that the engine was made for.
//
// A step may throw std::bad_alloc or CMemoryException; the engine catches both.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVPrintEngineData {
public:
    // Fonts are not owned, and may be null for an item that does without.
    QVPrintEngineData(CFont* pHeaderFont, unsigned nHeaderHeight, CFont* pNormalFont,
                      unsigned nNormalHeight);
    QVPrintEngineData(const QVPrintEngineData&) = default;
    QVPrintEngineData& operator=(const QVPrintEngineData&) = default;
    virtual ~QVPrintEngineData() = default;

    // With less room than that the item begins on the next page.
    virtual unsigned MinSize() { return m_nMinSize; }
    // The whole item.
    virtual unsigned MaxSize() { return m_nMaxSize; }
    // Skipped where it would stand first on a page.
    virtual bool Optional() { return false; }
    // Goes to the next page with what follows it.
    virtual bool DoNotWidow() { return false; }
    // Called before the sizes are asked for.
    virtual void CalcSize(unsigned /*nWidth*/) {}
    // Draws rows nFirst to nLast (all bits set: to the end) at the top of rect, and moves its top
    // down past them.
    virtual void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) = 0;
    // Printing would start at nFirst with nRemaining of the page left: sets nLast to the last row
    // that fits and takes the height used off nRemaining. True if that ends the item.
    virtual bool PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining);
    // False once memory did not suffice for a row that was added to it.
    bool IsComplete() const { return m_bComplete; }

protected:
    void SetIncomplete() { m_bComplete = false; }
    void SetMinSize(unsigned nSize) { m_nMinSize = nSize; }
    void SetMaxSize(unsigned nSize) { m_nMaxSize = nSize; }
    CFont* HeaderFont() const { return m_pHeaderFont; }
    CFont* NormalFont() const { return m_pNormalFont; }
    unsigned HeaderFontHeight() const { return m_nHeaderFontHeight; }
    unsigned NormalFontHeight() const { return m_nNormalFontHeight; }

private:
    CFont* m_pHeaderFont;
    CFont* m_pNormalFont;
    unsigned m_nHeaderFontHeight;
    unsigned m_nNormalFontHeight;
    unsigned m_nMinSize = 0;
    unsigned m_nMaxSize = 0;
    bool m_bComplete = true;
};
