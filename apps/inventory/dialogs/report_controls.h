// What several dialogs of the report offer alike.

#pragma once

#include "QVControls.h"

#include <string>

// The codes that a title or footer may hold, put into the edit by a button beside it.
void OfferCodes(QVMacroButton& button, CWnd& dialog, UINT nButton, UINT nEdit);
// The colours of texts; nColor: the one that is chosen.
void OfferColors(QVColorComboBox& combo, CWnd& dialog, UINT nID, int nColor);
int ChosenColor(QVColorComboBox& combo);
// Packages of all kinds, required or unusual ones, with their images.
void OfferPackages(QVBitmapComboBox& combo, CWnd& dialog, UINT nID, int nChosen);

std::string TextOf(CWnd& dialog, UINT nID);
// The same without blanks at its ends.
std::string TrimmedTextOf(CWnd& dialog, UINT nID);
CComboBox& ComboOf(CWnd& dialog, UINT nID);
bool IsTicked(CWnd& dialog, UINT nID);
void Tick(CWnd& dialog, UINT nID, bool bTicked);
