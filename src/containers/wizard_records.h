// A step of a wizard as a plain record.

#pragma once

// Whether a step's page has been painted yet.
enum WizStepState : int {
    WizStepNotVisited = 0,
    WizStepVisited = 1,
};

struct _QVWIZSTEP_INFO {
    WizStepState nState;
    unsigned dwStepID;
    char szTitle[32];  // of 30 bytes at most, zeros behind them
};
