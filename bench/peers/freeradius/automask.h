// FreeRADIUS's installed headers include this one, which the Debian package leaves out. Nothing of it is needed here.
#pragma once
