@echo off
rem Runs the checks of this folder. Their names as arguments select some of them.
"%~dp0bin\checks.exe" %*
set result=%errorlevel%
rem A window that was opened for this file alone stays until a key is pressed.
setlocal EnableDelayedExpansion
set line=!cmdcmdline!
if not "!line:run-checks.cmd=!" == "!line!" if "%CHECKS_DO_NOT_WAIT%" == "" pause
exit /b %result%
