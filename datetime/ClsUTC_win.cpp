#include "datetime/ClsUTC.h"

ClsUTC::ClsUTC() : ClsUTC(istanteAttuale(), formatoUtente()) {}
