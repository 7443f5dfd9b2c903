// The count behind AfxGetOwnedHandleCount. Internal to the framework.
#pragma once

void AfxCountOwnedHandle(int nChange);
