@echo off
rem Plays the scenarios, or those named, in the PowerPoint of this PC, and opens the report.
if not exist "%~dp0program\corvane-verify.exe" (
  echo Extract the whole zip file first, then open this file in the folder that you get.
  pause
  exit /b 2
)
"%~dp0program\corvane-verify.exe" --powerpoint %*
set status=%errorlevel%
if exist "%~dp0program\report\report.html" start "" "%~dp0program\report\report.html"
pause
exit /b %status%
