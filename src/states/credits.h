// credits.h -- the credits: a level that plays itself, the character walking past the names to the exit.
#pragma once

void CreditsLoad();
void CreditsInit();
void CreditsUpdate();
void CreditsDraw();
void CreditsFree();
void CreditsUnload();
