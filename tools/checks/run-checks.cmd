@echo off
rem Runs the checks of this folder. Their names as arguments select some of them.
setlocal DisableDelayedExpansion
set result=2
if exist "%~dp0bin\checks.exe" goto run
echo run-checks: bin\checks.exe is missing. Extract the whole zip into a folder, and start run-checks.cmd there. 1>&2
goto end
:run
"%~dp0bin\checks.exe" %*
set result=%errorlevel%
:end
rem A window that was opened for this file alone stays until a key is pressed.
setlocal EnableDelayedExpansion
set line=!cmdcmdline!
if not "!line:run-checks.cmd=!" == "!line!" if "%CHECKS_DO_NOT_WAIT%" == "" pause
exit /b %result%
